#include "DirectStart.h"

#include "PubSetup.h"
#include "PublisherNames.h"
#include "propertyDialog.h"

#include <QApplication>

std::optional<int> startWithPublisher(const char* strPublisherName)
{
    CPublisherMgr publisherMgr(true);
    // The result is unused: this publisher may be unreadable, and the search below skips such publishers. The
    // look-up remains because it logs an enumeration at log level 4.
    CString strFirstMatch;
    publisherMgr.GetPublisherRegistIDFromName(strPublisherName, &strFirstMatch);

    CStringArray ids;
    publisherMgr.EnumRegistedPublisher(&ids);
    for (const CString& id : ids) {
        if (!hasName(publisherMgr, id, strPublisherName)) {
            continue;
        }
        PUBLISHERINFO info;
        BOOL bConnection = 0;
        if (!PubSetup::readForProperties(publisherMgr, id, nullptr, info, bConnection)) {
            continue;
        }
        propertyDialogEx dialog(nullptr);
        dialog.fillContent(info, bConnection);
        dialog.show();
        return QApplication::exec();
    }
    return std::nullopt;
}
