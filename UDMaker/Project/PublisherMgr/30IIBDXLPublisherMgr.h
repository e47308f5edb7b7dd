// Declares C30IIBDXLPublisherMgr.
#pragma once

#include "ModelClasses.h"
