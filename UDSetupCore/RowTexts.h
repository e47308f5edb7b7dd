// What a row of the publisher list says, decided apart from widgets and from the questions to devices.
#pragma once

#include "Win_def_MFC.h"

#include <QString>

/// The answers that decide a publisher's status.
struct StatusFacts
{
    bool network = false;   ///< reached over the network, not through this computer's service
    bool reachable = false; ///< local: the device is attached; network: its server was reached
    long connectResult = 0; ///< result code of a network publisher's connection
    bool fatal = false;     ///< the device reports a fatal error, or could not be asked
    long fatalCode = 0;
};

struct StatusDecision
{
    QString status; ///< translated
    bool fetchWaiting;
    bool fetchSendingAndSpace;
};

StatusDecision decideStatus(const StatusFacts& facts);

/// The name of a model; not translated. `devType` is an enPublisherType, `netPublisherType` an
/// enNetworkPublisherType, which counts for a network publisher only.
QString modelText(UINT devType, UINT netPublisherType);

/// A count of jobs; "-" when it is unknown (negative).
QString jobCountText(int count);

/// "-" when empty.
QString hostNameText(const QString& hostName);

/// Free space in GB from a count of bytes in decimal digits, cut to whole MiB; "-" when empty. Not
/// translated, and with a decimal point in every locale.
QString spaceText(const CString& bytes);
