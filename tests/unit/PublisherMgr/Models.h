// All model classes.
#pragma once

#include "300IIBDPublisherMgr.h"
#include "300IIDVDPublisherMgr.h"
#include "300IIIBDPublisherMgr.h"
#include "300IIIBDXLPublisherMgr.h"
#include "300IIIDVDPublisherMgr.h"
#include "300MODPublisherMgr.h"
#include "30BDAPublisherMgr.h"
#include "30BDPublisherMgr.h"
#include "30IIBDXLPublisherMgr.h"
#include "30IIPublisherMgr.h"
#include "APPublisherMgr.h"
#include "BasicPublisherMgr.h"
#include "InstallPaths.h"
#include "SDPublisherMgr.h"

#include <memory>

template <class Model>
std::unique_ptr<CBasicPublisherMgr> Make()
{
    return std::make_unique<Model>(true, PUBLISHER_SETTING_DIR);
}
