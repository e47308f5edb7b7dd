// Declares C300IIIBDXLPublisherMgr.
#pragma once

#include "ModelClasses.h"
