// Declares C30BDPublisherMgr.
#pragma once

#include "ModelClasses.h"
