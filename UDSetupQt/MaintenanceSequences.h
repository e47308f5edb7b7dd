// The guided printer maintenance of a publisher: a dialog with instructions, a job, and a dialog that says
// what to check on the printer.
#pragma once

#include "PublisherMgrIF.h"

/// Each sequence offers the other at its end, so they alternate until the user finishes. Both run the event
/// loop of their dialogs and block while a job is submitted.
void runNozzleCheckSequence(const PUBLISHERINFO& info);
void runHeadCleaningSequence(const PUBLISHERINFO& info);
