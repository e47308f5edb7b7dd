// The classes of models that differ from their base class only in their row of the model table.
#pragma once

#include "300MODPublisherMgr.h"
#include "SDPublisherMgr.h"

#include <memory>

/// `Base` with the row of `uiType`.
template <class Base, UINT uiType>
class CModelPublisherMgr : public Base
{
public:
    using Base::Base;

    UINT GetPublisherMgrType() override
    {
        return uiType;
    }
};

/// The factory function for a row of the model table.
template <class Model>
std::unique_ptr<IPublisherMgr> CreateModel(bool bPublisherIDMode, const CString& strPath)
{
    return std::make_unique<Model>(bPublisherIDMode, strPath);
}

// One drive

class C30BDPublisherMgr : public CModelPublisherMgr<CSDPublisherMgr, PUBMGR_PUBLISHERTYPE_30BD>
{
public:
    using CModelPublisherMgr::CModelPublisherMgr;
};

/// The archive model, which measures error rates.
class C30BDAPublisherMgr : public CModelPublisherMgr<C30BDPublisherMgr, PUBMGR_PUBLISHERTYPE_30BDA>
{
public:
    using CModelPublisherMgr::CModelPublisherMgr;
};

class C30IIPublisherMgr : public CModelPublisherMgr<CSDPublisherMgr, PUBMGR_PUBLISHERTYPE_30II>
{
public:
    using CModelPublisherMgr::CModelPublisherMgr;
};

class C30IIBDXLPublisherMgr : public CModelPublisherMgr<CSDPublisherMgr, PUBMGR_PUBLISHERTYPE_30II_BDXL>
{
public:
    using CModelPublisherMgr::CModelPublisherMgr;
};

// Two drives

class C300IIDVDPublisherMgr : public CModelPublisherMgr<C300MODPublisherMgr, PUBMGR_PUBLISHERTYPE_300II_DVD>
{
public:
    using CModelPublisherMgr::CModelPublisherMgr;
};

class C300IIBDPublisherMgr : public CModelPublisherMgr<C300MODPublisherMgr, PUBMGR_PUBLISHERTYPE_300II_BD>
{
public:
    using CModelPublisherMgr::CModelPublisherMgr;
};

class C300IIIDVDPublisherMgr : public CModelPublisherMgr<C300MODPublisherMgr, PUBMGR_PUBLISHERTYPE_300III_DVD>
{
public:
    using CModelPublisherMgr::CModelPublisherMgr;
};

class C300IIIBDPublisherMgr : public CModelPublisherMgr<C300MODPublisherMgr, PUBMGR_PUBLISHERTYPE_300III_BD>
{
public:
    using CModelPublisherMgr::CModelPublisherMgr;
};

class C300IIIBDXLPublisherMgr
    : public CModelPublisherMgr<C300MODPublisherMgr, PUBMGR_PUBLISHERTYPE_300III_BDXL>
{
public:
    using CModelPublisherMgr::CModelPublisherMgr;
};
