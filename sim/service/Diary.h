// Writes the service's log file and collects notes for the user.
#pragma once

#include <string>
#include <vector>

#include "Publisher.h"
#include "ServiceLog.h"
#include "Wire.h"

namespace udsim {

/// Describes a command that changes something, with its result: "publish mode 2 set". Empty for a query.
std::string describe(const Request& command, uint64_t result);

class Diary
{
public:
    /// Writes a line to the log. Adds a note for the first of several consecutive write failures; a failure
    /// has no other effect.
    void log(const std::string& text);
    /// Writes a line to the log and adds it as a note.
    void say(const std::string& text);
    /// Logs the changes of the machines since the last call: connections, errors, ended jobs.
    void follow(std::vector<Publisher>& publishers);
    /// Discards the known states, so that the next follow() logs every machine.
    void forget();
    /// Returns the notes since the last call.
    std::vector<std::string> takeNotes();

private:
    struct Known
    {
        bool connected = false;
        uint32_t error = 0;
    };

    ServiceLog m_log;
    bool m_broken = false; ///< the last write failed, and a note was added
    std::vector<std::string> m_notes;
    std::vector<Known> m_known;
};

} // namespace udsim
