// The texts in a row of the publisher list, decided without widgets or device access.
#pragma once

#include "Win_def_MFC.h"

#include <QString>

/// The query results that determine a publisher's status.
struct StatusFacts
{
    bool network = false;   ///< reached over the network, not through the local service
    bool reachable = false; ///< local: the device is attached; network: its server was reached
    long connectResult = 0; ///< result code of a network publisher's connection
    bool fatal = false;     ///< the device reports a fatal error or could not be queried
    long fatalCode = 0;
};

/// The states that the status texts name.
enum class PublisherState
{
    ready,
    notConnected,
    error,
    administratorNotRegistered,
    unsupportedVersion
};

struct StatusDecision
{
    QString status; ///< translated
    bool fetchWaiting;
    bool fetchSendingAndSpace;
    PublisherState state;
};

StatusDecision decideStatus(const StatusFacts& facts);

/// Translated.
QString statusText(PublisherState state);

/// The name of a model; not translated. `devType` is an enPublisherType. `netPublisherType` is an
/// enNetworkPublisherType and applies only to a network publisher.
QString modelText(UINT devType, UINT netPublisherType);

/// A count of jobs; "-" if it is unknown (negative).
QString jobCountText(int count);

/// "-" if empty.
QString hostNameText(const QString& hostName);

/// Free space in GB from a number of bytes in decimal digits, rounded down to whole MiB; "-" if empty. Not
/// translated, with a decimal point in every locale.
QString spaceText(const CString& bytes);
