// The model table. All behaviour that depends on the model is determined by its row.
#pragma once

#include "PubMgrConst.h"
#include "Win_def_MFC.h"

#include <array>
#include <initializer_list>
#include <memory>
#include <span>

class IPublisherMgr;

/// Groups the models that share their settings in the property dialog.
enum class ModelFamily
{
    rt300,   ///< two drives, stacker 3
    rt30,    ///< one drive, no stacker 3, no batch mode
    network, ///< reached through a server; its settings are read-only
    unknown  ///< cannot be set up in a window
};

/// A set of numbers from 0 to 31. A larger number in the table does not compile.
class NumberSet
{
public:
    constexpr NumberSet(std::initializer_list<UINT> numbers)
    {
        for (const UINT uiNumber : numbers) {
            m_uiBits |= UINT{1} << uiNumber;
        }
    }
    constexpr bool Contains(UINT uiNumber) const
    {
        return uiNumber < 32 && (m_uiBits >> uiNumber & 1) != 0;
    }

private:
    UINT m_uiBits = 0;
};

/// One row. The defaults are those of a local model with two drives.
struct PublisherModel
{
    UINT uiType; ///< enPublisherType
    /// Values of REG_PUB_CTRL_DEVICETYPE that identify this model; 0 marks an unused element. If a family has
    /// a DVD and a Blu-ray model, the bare family number identifies the Blu-ray model.
    std::array<DWORD, 2> deviceCodes = {};
    ModelFamily family = ModelFamily::unknown;
    const char* szName = "N/A";      ///< displayed name, not translated
    UINT uiSetUpAs = uiType;         ///< model that the property dialog shows instead
    bool bShowsDrive2Version = true; ///< the property dialog fills in the version of drive 2

    int nDrives = 2;
    bool bDriveSettings = true; ///< the setting file holds drive, retries and error mark
    bool bStacker4 = true;
    bool bArchiveDiscs = false;
    NumberSet publishModes = {}; ///< enPublishMode
    NumberSet discTypes = {};    ///< enOrlaStackerDiscType

    /// Creates the object that serves the model.
    std::unique_ptr<IPublisherMgr> (*pCreate)(bool bPublisherIDMode, const CString& strPath);

    /// Also true for the model without drives.
    constexpr bool HasDriveChoice() const
    {
        return nDrives != 1;
    }
    constexpr bool WritesBDXL() const
    {
        return discTypes.Contains(PUBMGR_STACKERDISCTYPE_BDRTL);
    }
    constexpr bool MeasuresErrorRates() const
    {
        return publishModes.Contains(PUBMGR_PUBLISHMODE_ERRORRATE);
    }
};

/// One kind of network publisher.
struct NetworkModel
{
    UINT uiNetPublisherType; ///< enNetworkPublisherType
    const char* szName;      ///< displayed name, not translated
    bool bWritesBDXL;
};

/// All models, in the order in which CPublisherMgr holds their objects.
std::span<const PublisherModel> PublisherModels();
/// The kinds of network publishers that have a name.
std::span<const NetworkModel> NetworkModels();

// Each returns null if there is no such row.

/// `uiType` is an enPublisherType.
const PublisherModel* FindModel(UINT uiType);
/// `dwDeviceCode` is a value of REG_PUB_CTRL_DEVICETYPE.
const PublisherModel* FindModelOfDevice(DWORD dwDeviceCode);
/// `uiNetPublisherType` is an enNetworkPublisherType.
const NetworkModel* FindNetworkModel(UINT uiNetPublisherType);
