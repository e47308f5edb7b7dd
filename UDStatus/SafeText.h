// Texts from services, servers, files and users that are about to be shown on a terminal.
#pragma once

#include <QString>

/// Replaces what could move the cursor, change the terminal or hide text, by a visible form: control
/// characters by "\x1b", line and paragraph separators, bidirectional controls and other invisible format
/// characters by "\u202e", unpaired surrogates by U+FFFD. Joiners stay, because scripts need them. A text
/// without such characters is unchanged; a backslash is not escaped.
QString safeText(const QString& text);

/// The same for a JSON document, which must stay equivalent: only the characters that JSON may contain
/// unescaped are replaced, by "\u009b".
QByteArray safeJson(const QByteArray& document);
