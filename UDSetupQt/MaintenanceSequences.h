// The guided printer maintenance of a publisher: a dialog that explains, a job, a dialog that tells what to
// look for on the printer.
#pragma once

#include "PublisherMgrIF.h"

/// Each offers the other at its end, and so they take turns until the user finishes. Both run the event loop
/// of their dialogs, and block while a job is handed over.
void runNozzleCheckSequence(const PUBLISHERINFO& info);
void runHeadCleaningSequence(const PUBLISHERINFO& info);
