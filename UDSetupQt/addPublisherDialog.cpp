#include "addPublisherDialog.h"

#include "FixToContents.h"
#include "FrameColours.h"
#include "NetworkPublisherMgr.h"
#include "NewPublisher.h"
#include "OneLine.h"
#include "PubMgrConst.h"
#include "WaitCursor.h"

#include <QEvent>
#include <QMessageBox>

#include <algorithm>
#include <cstdio>
#include <limits>

addPublisherDialog::addPublisherDialog(QDialog* parent) : QDialog(parent), m_cPubMgr(true)
{
    setupUi(this);
    connectAll();
    colourFrames();
    for (QLineEdit* field : {textHostName, textPublisherName}) {
        field->setMaxLength(std::numeric_limits<int>::max()); // the default has a limit
    }
    textHostName->setFocus();
    fixToContents(*this);
    offerName();
}

bool addPublisherDialog::event(QEvent* e)
{
    if (e->type() == QEvent::ApplicationPaletteChange) {
        colourFrames();
    }
    return QDialog::event(e);
}

void addPublisherDialog::connectAll()
{
    connect(buttonBox, &QDialogButtonBox::accepted, this, &addPublisherDialog::addPublisher);
    connect(buttonBox, &QDialogButtonBox::rejected, this, &addPublisherDialog::reject);
    connect(textPublisherName, &QLineEdit::textChanged, this, [this] {
        if (labelListedName->showFor(*textPublisherName, EmptyName::isStored)) {
            fixToContents(*this);
        }
    });
}

void addPublisherDialog::colourFrames()
{
    setFrameColours(*textHostName);
    setFrameColours(*textPublisherName);
}

void addPublisherDialog::offerName()
{
    CStringArray ids;
    m_cPubMgr.EnumRegistedPublisher(&ids);
    CStringArray names;
    for (const CString& id : ids) {
        const CString name = m_cPubMgr.GetPublisherName(id.c_str());
        std::printf("addPublisherDialog::addPublisherDialog, %s %s \n", id.c_str(), name.c_str());
        names.Add(name);
    }
    textPublisherName->setText(QString::fromStdString(freeDefaultName(names)));
}

bool addPublisherDialog::isTaken(const CStringArray& ids, const CString& name, const CString& host)
{
    return std::any_of(ids.begin(), ids.end(), [&](const CString& id) {
        const bool network = m_cPubMgr.GetConnectType(id.c_str()) == PUBMGR_CONNECTTYPE_NETWORK;
        PUBLISHERINFO info; // as stored: no device is queried
        return m_cPubMgr.GetPublisherInfo(id.c_str(), &info, network) && isTakenBy(info, name, host);
    });
}

addPublisherDialog::Addition addPublisherDialog::add()
{
    const WaitCursor cursor;
    SYSTEMTIME today;
    GetSystemTime(&today);
    CStringArray ids;
    m_cPubMgr.EnumRegistedPublisher(&ids);
    const CString name = oneLine(textPublisherName->text()).toStdString();
    const CString host = oneLine(textHostName->text()).toStdString();

    if (isTaken(ids, name, host)) {
        return Addition::taken;
    }
    if (CNetworkPublisherMgr(true, "").ConnectionTest(host.c_str()) != 0) {
        return Addition::notFound;
    }
    const bool added = addUnderFreeID(ids, today, name, host, [this](const PUBLISHERINFO& info) {
        return m_cPubMgr.AddPublisher(info.strPublisherRegistID.c_str(), info);
    });
    return added ? Addition::done : Addition::failed;
}

void addPublisherDialog::addPublisher()
{
    switch (add()) {
    case Addition::done:
        accept();
        break;
    case Addition::taken:
        QMessageBox::warning(this, tr("ARVEN Ulmar Disc Setup"),
                             tr("The same name is already registered.\nPlease use a different name."));
        break;
    case Addition::notFound:
        QMessageBox::warning(this, tr("ARVEN Ulmar Disc Setup"),
                             tr("The output device could not be found on the network.\nThere is a "
                                "possibility that either the host name or IP address is wrong, or the "
                                "output device is not connected to the network."));
        break;
    case Addition::failed:
        QMessageBox::critical(nullptr, tr("ARVEN Ulmar Disc Setup"), tr("Failed to change setting."));
        reject();
        break;
    }
}
