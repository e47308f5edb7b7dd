// Redraws a picture in place on a terminal until a signal ends it.
#pragma once

#include <QStringList>

#include <chrono>

/// Takes the signals that end, suspend or resize a watch, and gives the terminal another screen. The
/// destructor restores both. One object at a time; the program must have no other thread.
class Watch
{
public:
    Watch();
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// Readable once a signal has arrived, for SurveyOptions::interruption.
    int signalDescriptor() const
    {
        return m_signals;
    }

    /// Replaces the picture, cut to the height of the terminal. Without a terminal the lines are printed
    /// after the previous ones. Returns false if they cannot be written.
    bool draw(const QStringList& lines);

    /// Waits for a signal, at most this long, and handles those that arrived: a suspension is carried out,
    /// and a new size ends the wait. Returns false if the watch is to end.
    bool wait(std::chrono::milliseconds time);

    /// The exit code after wait() has returned false: 0 for Ctrl-C, 128 and the number of any other signal.
    int exitCode() const;

private:
    void enter();
    void leave();
    bool handle(int number);

    int m_signals = -1;
    int m_ended = 0; ///< the signal that ended the watch
    bool m_isTerminal = false;
    bool m_isFirst = true;
};
