#include "NewPublisher.h"

#include "PubMgrConst.h"

#include <QString>

#include <algorithm>

#include <strings.h>

namespace {

/// CString compares case-sensitively. The texts searched for here are ASCII.
bool containsInAnyCase(const CStringArray& texts, const CString& text)
{
    return std::any_of(texts.begin(), texts.end(), [&text](const CString& other) {
        return strcasecmp(other.c_str(), text.c_str()) == 0;
    });
}

} // namespace

CString freeDefaultName(const CStringArray& names)
{
    for (int number = 1; number < ARV_PC_PUBNAME_NUM; ++number) {
        CString name = "RT-300N " + std::to_string(number);
        if (!containsInAnyCase(names, name)) {
            return name;
        }
    }
    return {};
}

bool isTakenBy(const PUBLISHERINFO& registered, const CString& name, const CString& host)
{
    return name == registered.strPublisherName || host == registered.strHostName;
}

CString newRegistID(const SYSTEMTIME& today, int number)
{
    return QString::asprintf(ARV_PC_PUBLISHED_ID_NAME, today.wYear, today.wMonth, today.wDay, number)
        .toStdString();
}

bool addUnderFreeID(const CStringArray& taken, const SYSTEMTIME& today, const CString& name,
                    const CString& host, const std::function<bool(const PUBLISHERINFO&)>& add)
{
    for (int number = 1; number <= ARV_PC_PUBID_NUM; ++number) {
        const CString id = newRegistID(today, number);
        if (containsInAnyCase(taken, id)) {
            continue;
        }
        PUBLISHERINFO info;
        info.strPublisherName = name;
        info.strPublisherRegistID = id;
        info.uiPublisherType = PUBMGR_CONNECTTYPE_NETWORK;
        info.uiPublisherDevType = PUBMGR_PUBLISHERTYPE_NETWORK;
        info.strHostName = host;
        if (add(info)) {
            return true;
        }
    }
    return false;
}
