#include "ReportWords.h"

#include "SettingTexts.h"

#include <QCoreApplication>

#include <iterator>

namespace {

constexpr char context[] = "StatusProgram";

struct Row
{
    quint64 value;
    const char* word;
    const char* text; ///< not yet translated; null if there is none, or only that of the property dialog
};

QString translated(const char* text)
{
    return text ? QCoreApplication::translate(context, text) : QString();
}

template <size_t size>
ReportWord find(const Row (&rows)[size], quint64 value)
{
    for (const Row& row : rows) {
        if (row.value == value) {
            return {row.word, translated(row.text)};
        }
    }
    return {"", QString()};
}

template <size_t size>
std::vector<ReportWord> bitWords(const Row (&rows)[size], quint64 bits)
{
    std::vector<ReportWord> words;
    for (const Row& row : rows) {
        if ((bits & row.value) != 0) {
            words.push_back({row.word, translated(row.text)});
        }
    }
    return words;
}

struct StateRow
{
    PublisherState state;
    const char* word;
    const char* colour;
};

constexpr char green[] = "32";
constexpr char yellow[] = "33";
constexpr char red[] = "31";

constexpr StateRow stateRows[] = {
    {PublisherState::ready, "ready", green},
    {PublisherState::notConnected, "not-connected", yellow},
    {PublisherState::error, "error", red},
    {PublisherState::administratorNotRegistered, "administrator-not-registered", yellow},
    {PublisherState::unsupportedVersion, "unsupported-version", yellow},
};

const StateRow& stateRow(PublisherState state)
{
    for (const StateRow& row : stateRows) {
        if (row.state == state) {
            return row;
        }
    }
    return stateRows[1];
}

constexpr Row modeRows[] = {
    {PUBMGR_PUBLISHMODE_NORMAL, "standard", nullptr},
    {PUBMGR_PUBLISHMODE_BATCH, "batch", nullptr},
    {PUBMGR_PUBLISHMODE_OUTPUT, "external-output", nullptr},
    {PUBMGR_PUBLISHMODE_SECURITY, "security", QT_TRANSLATE_NOOP("StatusProgram", "Security mode")},
    {PUBMGR_PUBLISHMODE_EJECTCONTROL, "output-control",
     QT_TRANSLATE_NOOP("StatusProgram", "Output control mode")},
    {PUBMGR_PUBLISHMODE_ERRORRATE, "error-rate", QT_TRANSLATE_NOOP("StatusProgram", "Error rate mode")},
    {PUBMGR_PUBLISHMODE_READ, "read", QT_TRANSLATE_NOOP("StatusProgram", "Read mode")},
};

constexpr Row discTypeRows[] = {
    {PUBMGR_STACKERDISCTYPE_OUTPUT, "output", nullptr},
    {PUBMGR_STACKERDISCTYPE_CDR, "CD-R", nullptr},
    {PUBMGR_STACKERDISCTYPE_DVDMINUSR, "DVD-R", "DVD-R"},
    {PUBMGR_STACKERDISCTYPE_DVDMINUSRDL, "DVD-R DL", "DVD-R DL"},
    {PUBMGR_STACKERDISCTYPE_DVDPLUSR, "DVD+R", "DVD+R"},
    {PUBMGR_STACKERDISCTYPE_DVDPLUSRDL, "DVD+R DL", "DVD+R DL"},
    {PUBMGR_STACKERDISCTYPE_DVDR, "DVD", nullptr},
    {PUBMGR_STACKERDISCTYPE_DVDRDL, "DVD DL", nullptr},
    {PUBMGR_STACKERDISCTYPE_BDR, "BD-R", nullptr},
    {PUBMGR_STACKERDISCTYPE_BDRDL, "BD-R DL", nullptr},
    {PUBMGR_STACKERDISCTYPE_BDRTL, "BD-R TL", nullptr},
    {PUBMGR_STACKERDISCTYPE_BDRQL, "BD-R QL", nullptr},
    {PUBMGR_STACKERDISCTYPE_INPUT, "input", QT_TRANSLATE_NOOP("StatusProgram", "Input Stacker")},
    {PUBMGR_STACKERDISCTYPE_NOTUSE, "not-used", nullptr},
};

constexpr Row jobStateRows[] = {
    {ARV_PC_JOB_WAITING, "waiting", QT_TRANSLATE_NOOP("StatusProgram", "waiting")},
    {ARV_PC_JOB_RUNNING, "running", QT_TRANSLATE_NOOP("StatusProgram", "running")},
    {ARV_PC_JOB_CANCEL_PENDING, "canceling", QT_TRANSLATE_NOOP("StatusProgram", "canceling")},
    {ARV_PC_JOB_PAUSE_PENDING, "pausing", QT_TRANSLATE_NOOP("StatusProgram", "pausing")},
    {ARV_PC_JOB_PAUSED, "paused", QT_TRANSLATE_NOOP("StatusProgram", "paused")},
    {ARV_PC_JOB_STOP_PENDING, "stopping", QT_TRANSLATE_NOOP("StatusProgram", "stopping")},
    {ARV_PC_JOB_STOPPED, "stopped", QT_TRANSLATE_NOOP("StatusProgram", "stopped")},
    {ARV_PC_JOB_CANCELLED, "canceled", QT_TRANSLATE_NOOP("StatusProgram", "canceled")},
    {ARV_PC_JOB_FINISHED, "finished", QT_TRANSLATE_NOOP("StatusProgram", "finished")},
};

constexpr Row jobTypeRows[] = {
    {ARV_PC_JOB_TYPE_WRITE, "write", nullptr},
    {ARV_PC_JOB_TYPE_PRINT, "print", nullptr},
    {ARV_PC_JOB_TYPE_WRITE | ARV_PC_JOB_TYPE_PRINT, "write-and-print", nullptr},
    {ARV_PC_JOB_TYPE_NOZZLECHECK, "nozzle-check", nullptr},
    {ARV_PC_JOB_TYPE_CLEANING, "head-cleaning", nullptr},
    {ARV_PC_JOB_TYPE_GAPADJUSTMENT_CONVEYANCE, "gap-adjustment", nullptr},
    {ARV_PC_JOB_TYPE_GAPADJUSTMENT_UNCONVEYANCE, "gap-adjustment", nullptr},
    {ARV_PC_JOB_TYPE_POSITIONOFFSET_CONVEYANCE, "position-correction", nullptr},
    {ARV_PC_JOB_TYPE_POSITIONOFFSET_UNCONVEYANCE, "position-correction", nullptr},
    {ARV_PC_JOB_TYPE_READ, "read", nullptr},
    {ARV_PC_JOB_TYPE_ERRORRATE, "error-rate", nullptr},
};

constexpr Row inkColorRows[inkCount] = {
    {0, "cyan", QT_TRANSLATE_NOOP("StatusProgram", "Cyan")},
    {1, "magenta", QT_TRANSLATE_NOOP("StatusProgram", "Magenta")},
    {2, "yellow", QT_TRANSLATE_NOOP("StatusProgram", "Yellow")},
    {3, "light-cyan", QT_TRANSLATE_NOOP("StatusProgram", "Light cyan")},
    {4, "light-magenta", QT_TRANSLATE_NOOP("StatusProgram", "Light magenta")},
    {5, "black", QT_TRANSLATE_NOOP("StatusProgram", "Black")},
};

constexpr Row inkStateRows[] = {
    {0, "ok", nullptr},
    {ARV_PC_INK_NEAR_EMPTY, "near-empty", QT_TRANSLATE_NOOP("StatusProgram", "nearly empty")},
    {ARV_PC_INK_CARTRIDGE_REMOVED, "removed", QT_TRANSLATE_NOOP("StatusProgram", "removed")},
    {ARV_PC_INK_CARTRIDGE_INVALID, "invalid", QT_TRANSLATE_NOOP("StatusProgram", "not recognized")},
    {ARV_PC_NON_STANDARD_INK, "non-standard", QT_TRANSLATE_NOOP("StatusProgram", "not an original")},
    {ARV_PC_INK_UNKNOWN, "unknown", QT_TRANSLATE_NOOP("StatusProgram", "unknown")},
};

constexpr Row stackerStateRows[] = {
    {ARV_PC_STK_STATUS_NOT_FULL, "not-full", QT_TRANSLATE_NOOP("StatusProgram", "not full")},
    {ARV_PC_STK_STATUS_OVERFLOW, "overflow", QT_TRANSLATE_NOOP("StatusProgram", "too full")},
    {ARV_PC_STK_STATUS_UNKNOWN, "unknown", QT_TRANSLATE_NOOP("StatusProgram", "unknown")},
};

constexpr Row driveRows[] = {
    {ARV_PC_DRV_STATE_IDLE, "idle", QT_TRANSLATE_NOOP("StatusProgram", "idle")},
    {ARV_PC_DRV_STATE_CONTAINING, "containing", QT_TRANSLATE_NOOP("StatusProgram", "contains a disc")},
    {ARV_PC_DRV_STATE_WRITING, "writing", QT_TRANSLATE_NOOP("StatusProgram", "writing")},
    {ARV_PC_DRV_STATE_VERIFYING, "verifying", QT_TRANSLATE_NOOP("StatusProgram", "verifying")},
    {ARV_PC_DRV_STATE_ERROR, "error", QT_TRANSLATE_NOOP("StatusProgram", "error")},
    {ARV_PC_DRV_STATE_NOTUSE, "not-used", QT_TRANSLATE_NOOP("StatusProgram", "not used")},
    {ARV_PC_DRV_STATE_CONVEYING, "conveying", QT_TRANSLATE_NOOP("StatusProgram", "conveying")},
    {ARV_PC_DRV_STATE_PAUSE, "paused", QT_TRANSLATE_NOOP("StatusProgram", "paused")},
    {ARV_PC_DRV_STATE_PLUGIN_EXECUTE, "plug-in", QT_TRANSLATE_NOOP("StatusProgram", "running a plug-in")},
    {ARV_PC_DRV_STATE_ERRORRATE_MEASURING, "measuring", QT_TRANSLATE_NOOP("StatusProgram", "measuring")},
    {ARV_PC_DRV_STATE_READING, "reading", QT_TRANSLATE_NOOP("StatusProgram", "reading")},
};

constexpr Row printerRows[] = {
    {ARV_PC_PRT_STATE_IDLE, "idle", QT_TRANSLATE_NOOP("StatusProgram", "idle")},
    {ARV_PC_PRT_STATE_CONVEYING, "conveying", QT_TRANSLATE_NOOP("StatusProgram", "conveying")},
    {ARV_PC_PRT_STATE_PRINTING, "printing", QT_TRANSLATE_NOOP("StatusProgram", "printing")},
    {ARV_PC_PRT_STATE_PAUSE, "paused", QT_TRANSLATE_NOOP("StatusProgram", "paused")},
    {ARV_PC_PRT_STATE_CLEANING, "cleaning", QT_TRANSLATE_NOOP("StatusProgram", "cleaning")},
    {ARV_PC_PRT_STATE_DRYING, "drying", QT_TRANSLATE_NOOP("StatusProgram", "drying")},
    {ARV_PC_PRT_STATE_ERROR, "error", QT_TRANSLATE_NOOP("StatusProgram", "error")},
    {ARV_PC_PRT_STATE_BUSY, "busy", QT_TRANSLATE_NOOP("StatusProgram", "busy")},
    {ARV_PC_PRT_STATE_WARN_MAINTENANCE, "maintenance-soon",
     QT_TRANSLATE_NOOP("StatusProgram", "maintenance due soon")},
    {ARV_PC_PRT_STATE_WARN_INKPAD_FULL, "ink-pad-nearly-full",
     QT_TRANSLATE_NOOP("StatusProgram", "ink pad nearly full")},
    {ARV_PC_PRT_STATE_WARN_MECHANISM, "mechanism-warning",
     QT_TRANSLATE_NOOP("StatusProgram", "mechanical warning")},
    {ARV_PC_PRT_STATE_ERROR_OFFLINE, "offline", QT_TRANSLATE_NOOP("StatusProgram", "offline")},
    {ARV_PC_PRT_STATE_ERROR_INKPAD_OVERFLOW, "ink-pad-overflow",
     QT_TRANSLATE_NOOP("StatusProgram", "ink pad full")},
    {ARV_PC_PRT_STATE_ERROR_MAINTENANCE, "maintenance-required",
     QT_TRANSLATE_NOOP("StatusProgram", "maintenance required")},
    {ARV_PC_PRT_STATE_ERROR_FATAL, "fatal-error", QT_TRANSLATE_NOOP("StatusProgram", "fatal error")},
    {ARV_PC_PRT_STATE_ERROR_DISC_COVER_OPEN, "disc-cover-open",
     QT_TRANSLATE_NOOP("StatusProgram", "disc cover open")},
    {ARV_PC_PRT_STATE_ERROR_INK_COVER_OPEN, "ink-cover-open",
     QT_TRANSLATE_NOOP("StatusProgram", "ink cover open")},
    {ARV_PC_PRT_STATE_ERROR_INK_OUT, "ink-out", QT_TRANSLATE_NOOP("StatusProgram", "out of ink")},
    {ARV_PC_PRT_STATE_ERROR_MB_COVER_OPEN, "maintenance-box-cover-open",
     QT_TRANSLATE_NOOP("StatusProgram", "maintenance box cover open")},
    {ARV_PC_PRT_STATE_ERROR_MB_OUT, "maintenance-box-removed",
     QT_TRANSLATE_NOOP("StatusProgram", "maintenance box removed")},
    {ARV_PC_PRT_STATE_ERROR_MB_FULL, "maintenance-box-full",
     QT_TRANSLATE_NOOP("StatusProgram", "maintenance box full")},
    {ARV_PC_PRT_STATE_ERROR_MECHANISM, "mechanism-error",
     QT_TRANSLATE_NOOP("StatusProgram", "mechanical error")},
};

constexpr Row loaderRows[] = {
    {ARV_PC_ALD_STATE_STACKER1_REMOVED, "stacker-1-removed",
     QT_TRANSLATE_NOOP("StatusProgram", "stacker 1 removed")},
    {ARV_PC_ALD_STATE_STACKER2_REMOVED, "stacker-2-removed",
     QT_TRANSLATE_NOOP("StatusProgram", "stacker 2 removed")},
    {ARV_PC_ALD_STATE_STACKER3_REMOVED, "stacker-3-removed",
     QT_TRANSLATE_NOOP("StatusProgram", "stacker 3 removed")},
    {ARV_PC_ALD_STATE_STACKER4_OPEN, "stacker-4-open", QT_TRANSLATE_NOOP("StatusProgram", "stacker 4 open")},
    {ARV_PC_ALD_STATE_DISC_COVER_OPEN, "disc-cover-open",
     QT_TRANSLATE_NOOP("StatusProgram", "disc cover open")},
    {ARV_PC_ALD_STATE_INK_COVER_OPEN, "ink-cover-open", QT_TRANSLATE_NOOP("StatusProgram", "ink cover open")},
    {ARV_PC_ALD_STATE_POWER_OFF, "power-off", QT_TRANSLATE_NOOP("StatusProgram", "switched off")},
    {ARV_PC_ALD_STATE_PRT_FATAL_ERROR, "printer-fatal-error",
     QT_TRANSLATE_NOOP("StatusProgram", "fatal printer error")},
    {ARV_PC_ALD_STATE_PRT_MAINTENANCE, "printer-maintenance",
     QT_TRANSLATE_NOOP("StatusProgram", "printer requires maintenance")},
    {ARV_PC_ALD_STATE_PRT_ERROR, "printer-error", QT_TRANSLATE_NOOP("StatusProgram", "printer error")},
    {ARV_PC_ALD_STATE_STACKER1_OVERFLOW, "stacker-1-overflow",
     QT_TRANSLATE_NOOP("StatusProgram", "stacker 1 too full")},
    {ARV_PC_ALD_STATE_STACKER2_OVERFLOW, "stacker-2-overflow",
     QT_TRANSLATE_NOOP("StatusProgram", "stacker 2 too full")},
    {ARV_PC_ALD_STATE_AUTOMATION, "automatic", QT_TRANSLATE_NOOP("StatusProgram", "in operation")},
    {ARV_PC_ALD_STATE_ALD_FATAL_ERROR, "fatal-error", QT_TRANSLATE_NOOP("StatusProgram", "fatal error")},
    {ARV_PC_ALD_STATE_ALD_MAINTENANCE_ERROR, "maintenance-error",
     QT_TRANSLATE_NOOP("StatusProgram", "maintenance required")},
    {ARV_PC_ALD_STATE_ALD_ERROR, "error", QT_TRANSLATE_NOOP("StatusProgram", "error")},
    {ARV_PC_ALD_STATE_STACKER3_OVERFLOW, "stacker-3-overflow",
     QT_TRANSLATE_NOOP("StatusProgram", "stacker 3 too full")},
    {ARV_PC_ALD_STATE_INITIALIZE, "initializing", QT_TRANSLATE_NOOP("StatusProgram", "initializing")},
    {ARV_PC_ALD_STATE_RECOVER_DISC_COVER_OPEN, "recovering",
     QT_TRANSLATE_NOOP("StatusProgram", "recovering")},
    {ARV_PC_ALD_STATE_FINALIZE, "finalizing", QT_TRANSLATE_NOOP("StatusProgram", "finalizing")},
    {ARV_PC_ALD_STATE_INITIALIZE_SUSPEND, "initialization-suspended",
     QT_TRANSLATE_NOOP("StatusProgram", "initialization suspended")},
    {ARV_PC_ALD_STATE_RECOVER_DISC_COVER_OPEN_SUSPEND, "recovery-suspended",
     QT_TRANSLATE_NOOP("StatusProgram", "recovery suspended")},
    {ARV_PC_ALD_STATE_STK_DISC_PICK, "disc-pick-error",
     QT_TRANSLATE_NOOP("StatusProgram", "disc pick error")},
    {ARV_PC_ALD_STATE_MB_OUT, "maintenance-box-removed",
     QT_TRANSLATE_NOOP("StatusProgram", "maintenance box removed")},
    {ARV_PC_ALD_STATE_MB_COVER_OPEN, "maintenance-box-cover-open",
     QT_TRANSLATE_NOOP("StatusProgram", "maintenance box cover open")},
    {ARV_PC_ALD_STATE_MB_FULL, "maintenance-box-full",
     QT_TRANSLATE_NOOP("StatusProgram", "maintenance box full")},
    {ARV_PC_ALD_STATE_ALD_MAINTENANCE_WARNING, "maintenance-soon",
     QT_TRANSLATE_NOOP("StatusProgram", "maintenance due soon")},
    {ARV_PC_ALD_STATE_UNDER_MAINTENANCE, "under-maintenance",
     QT_TRANSLATE_NOOP("StatusProgram", "under maintenance")},
    {ARV_PC_ALD_STATE_ERROR_DISC_MANAGEMENT, "disc-management-error",
     QT_TRANSLATE_NOOP("StatusProgram", "disc management error")},
    {ARV_PC_ALD_STATE_FAN_ERROR, "fan-error", QT_TRANSLATE_NOOP("StatusProgram", "fan error")},
};

/// The text of the property dialog, where it has one for this value.
ReportWord withDialogText(const ReportWord& word, const QString& text)
{
    return text.isEmpty() ? word : ReportWord{word.word, text};
}

} // namespace

ReportWord statusWord(const PublisherReport& report)
{
    if (report.answer == Answer::none) {
        return {"no-answer", translated(QT_TRANSLATE_NOOP("StatusProgram", "No answer"))};
    }
    return {stateRow(report.state).word, statusText(report.state)};
}

const char* statusColour(const PublisherReport& report)
{
    return report.answer == Answer::none ? red : stateRow(report.state).colour;
}

ReportWord modeWord(quint32 mode)
{
    return withDialogText(find(modeRows, mode), publishModeText(mode));
}

ReportWord discTypeWord(quint32 discType)
{
    return withDialogText(find(discTypeRows, discType), discTypeText(discType));
}

ReportWord jobStateWord(quint64 status)
{
    return find(jobStateRows, status);
}

const char* jobTypeWord(quint64 type)
{
    return find(jobTypeRows, type).word;
}

ReportWord inkColorWord(size_t index)
{
    return find(inkColorRows, index);
}

Supply inkSupply(quint64 value)
{
    const quint64 amount = value & ~quint64{ARV_PC_INK_NEAR_EMPTY};
    if (amount <= 100) {
        return {static_cast<quint32>(amount), find(inkStateRows, value & ARV_PC_INK_NEAR_EMPTY)};
    }
    const ReportWord state = find(inkStateRows, amount);
    return {std::nullopt, *state.word == '\0' ? find(inkStateRows, ARV_PC_INK_UNKNOWN) : state};
}

StackerFill stackerFill(quint32 value)
{
    const bool supplies = (value & ARV_PC_STK_STATUS_SUPPLY) != 0;
    const quint32 discs = value & ~ARV_PC_STK_STATUS_SUPPLY;
    if (discs <= ARV_PC_STK_STATUS_FULL) {
        return {discs, {"counted", QString()}, supplies};
    }
    const ReportWord state = find(stackerStateRows, discs);
    return {std::nullopt, *state.word == '\0' ? find(stackerStateRows, ARV_PC_STK_STATUS_UNKNOWN) : state,
            supplies};
}

std::vector<ReportWord> driveWords(quint64 status)
{
    return bitWords(driveRows, status);
}

std::vector<ReportWord> printerWords(quint64 status)
{
    return bitWords(printerRows, status);
}

std::vector<ReportWord> loaderWords(quint64 status)
{
    return bitWords(loaderRows, status);
}

QString joinedTexts(const std::vector<ReportWord>& words)
{
    QStringList texts;
    for (const ReportWord& word : words) {
        if (!word.text.isEmpty()) {
            texts << word.text;
        }
    }
    return texts.join(QStringLiteral(", "));
}
