// Declares C300IIIBDPublisherMgr.
#pragma once

#include "ModelClasses.h"
