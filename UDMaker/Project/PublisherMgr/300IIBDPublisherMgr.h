// Declares C300IIBDPublisherMgr.
#pragma once

#include "ModelClasses.h"
