// Declares C300IIDVDPublisherMgr.
#pragma once

#include "ModelClasses.h"
