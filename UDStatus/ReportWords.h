// The words for the values in a report: stable English ones for programs, and translated ones for people.
#pragma once

#include "PublisherReport.h"

#include <QStringList>

/// A value that has a name. `word` is used in documents for programs and never changes; the text is shown to
/// people.
struct ReportWord
{
    const char* word;
    QString text; ///< translated
};

/// The status of the publisher, or that it gave no answer.
ReportWord statusWord(const PublisherReport& report);

/// The colour of the status on a terminal, as the parameters of the control sequence that selects it.
const char* statusColour(const PublisherReport& report);

// Empty word and text for an unknown number.

/// `mode` is an enPublishMode. The text is that of the property dialog, except for modes that it does not
/// have.
ReportWord modeWord(quint32 mode);
/// `discType` is an enOrlaStackerDiscType. The text is that of the property dialog, except for what it does
/// not have.
ReportWord discTypeWord(quint32 discType);
/// `status` is ARV_PC_JOB_*.
ReportWord jobStateWord(quint64 status);
/// `type` is ARV_PC_JOB_TYPE_*. Without a text.
const char* jobTypeWord(quint64 type);

/// The index is that of PublisherReport::ink.
ReportWord inkColorWord(size_t index);

/// A supply: what is left, and the state.
struct Supply
{
    std::optional<quint32> percent;
    ReportWord state; ///< the text is empty if all is well
};

/// `value` is a percentage or ARV_PC_INK_*.
Supply inkSupply(quint64 value);

/// How full a stacker is.
struct StackerFill
{
    std::optional<quint32> discs;
    ReportWord state;      ///< the text is empty if the number of discs is known
    bool supplies = false; ///< discs are taken from it
};

/// `value` is ARV_PC_STK_STATUS_*.
StackerFill stackerFill(quint32 value);

// One word for each bit, in the order of the bits.

/// ARV_PC_DRV_STATE_* bits.
std::vector<ReportWord> driveWords(quint64 status);
/// ARV_PC_PRT_STATE_* bits.
std::vector<ReportWord> printerWords(quint64 status);
/// ARV_PC_ALD_STATE_* bits.
std::vector<ReportWord> loaderWords(quint64 status);

/// The texts that are not empty, in one line.
QString joinedTexts(const std::vector<ReportWord>& words);
