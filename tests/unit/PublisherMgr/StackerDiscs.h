// The disc types of stackers, with short names for tables.
#pragma once

#include "PublisherMgrIF.h"

inline constexpr UINT out = PUBMGR_STACKERDISCTYPE_OUTPUT;
inline constexpr UINT in = PUBMGR_STACKERDISCTYPE_INPUT;
inline constexpr UINT none = PUBMGR_STACKERDISCTYPE_NOTUSE;
inline constexpr UINT cd = PUBMGR_STACKERDISCTYPE_CDR;
