// Declares C30IIPublisherMgr.
#pragma once

#include "ModelClasses.h"
