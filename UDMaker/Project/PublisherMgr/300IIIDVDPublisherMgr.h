// Declares C300IIIDVDPublisherMgr.
#pragma once

#include "ModelClasses.h"
