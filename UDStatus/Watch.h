// Redraws a picture in place on a terminal until a signal ends it.
#pragma once

#include <QStringList>

#include <chrono>
#include <functional>

/// Takes the signals that end, suspend or resize a watch, and gives the terminal another screen. The
/// destructor restores both. If standard output is not read for a second after a signal to end, as on a
/// terminal after Ctrl-S, the process ends with its exit code, and the screen is not restored; the other
/// signals wait until it is read. (A terminal that the process may not open again can delay every signal.)
/// One object at a time; the program must have no other thread.
class Watch
{
public:
    /// `lines` returns the current picture; without lines nothing is drawn.
    explicit Watch(std::function<QStringList()> lines);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// Readable once a signal has arrived, for SurveyOptions::interruption.
    int signalDescriptor() const
    {
        return m_signals;
    }

    // The next four return false if the watch is to end.

    /// Replaces the picture, cut to the height of the terminal. Without a terminal the lines are printed
    /// after the previous ones.
    bool draw();
    /// The same on a terminal. Does nothing without one.
    bool redraw();
    /// Handles the signals that arrived. A suspension is carried out; after it and after a new size the
    /// picture is redrawn.
    bool handleSignals();
    /// Waits this long, and handles signals meanwhile.
    bool wait(std::chrono::milliseconds time);

    /// The exit code of a watch that is to end: 0 for Ctrl-C, 128 and the number of any other signal, 1 if
    /// the picture cannot be written.
    int exitCode() const;

private:
    void enter();
    void leave();
    /// Writes all of it to standard output, as soon as that is read.
    bool print(const QByteArray& data);
    /// The next signal that has arrived; 0 if there is none.
    int nextSignal() const;
    bool handle(int number);

    const std::function<QStringList()> m_lines;
    int m_signals = -1;
    int m_ended = 0;       ///< the signal that ended the watch
    bool m_failed = false; ///< the picture cannot be written
    const bool m_isTerminal;
    const int m_output; ///< standard output
    bool m_isFirst = true;
};
