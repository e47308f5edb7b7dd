// Standard output, standard error and the terminal. All output is UTF-8, in every locale.
#pragma once

#include <QString>

/// Writes all of it, and waits as long as the descriptor takes nothing, even if it is non-blocking. Returns
/// false, with errno, on failure.
bool writeAll(int descriptor, const QByteArray& data);

/// Writes all of it to standard output. Returns false on failure, which complainAboutOutput has reported.
bool print(const QByteArray& data);

/// Prints why writing to standard output failed, by errno, unless the reader has closed the pipe.
void complainAboutOutput();

/// The text of an errno; English in every locale, as everything on standard error.
QString errorText(int error);

/// Prints a line on standard error, after the name of the program. Escapes unsafe characters.
void complain(const QString& text);

/// The width of the terminal on standard output in cells; 0 if standard output is no terminal.
int terminalWidth();

/// The height of the terminal on standard output in lines.
int terminalHeight();

/// Whether standard output is a terminal that takes control sequences.
bool takesSequences();

/// The same, and NO_COLOR is not set, or empty.
bool showsColours();
