// Declares C30BDAPublisherMgr.
#pragma once

#include "ModelClasses.h"
