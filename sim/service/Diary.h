// What the service writes down: its log file, and the notes for whoever watches the room.
#pragma once

#include <string>
#include <vector>

#include "Publisher.h"
#include "ServiceLog.h"
#include "Wire.h"

namespace udsim {

/// A command that changes something, and how it ended: "publish mode 2 set". Empty for one that only asks.
std::string describe(const Request& command, uint64_t result);

class Diary
{
public:
    /// A line in the log. A log that cannot be written yields one note, and the room goes on.
    void log(const std::string& text);
    /// The same, and a note.
    void say(const std::string& text);
    /// Logs what has become of the machines since the last call: connections, errors, jobs that ended.
    void follow(std::vector<Publisher>& publishers);
    /// Begins anew: the next follow() logs every machine.
    void forget();
    /// The notes since the last call.
    std::vector<std::string> takeNotes();

private:
    struct Known
    {
        bool connected = false;
        uint32_t error = 0;
    };

    ServiceLog m_log;
    bool m_broken = false; ///< the log could not be written, and a note has said so
    std::vector<std::string> m_notes;
    std::vector<Known> m_known;
};

} // namespace udsim
