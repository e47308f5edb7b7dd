#include "SafeText.h"

#include "CodePoint.h"

#include <QChar>
#include <QVector>

namespace {

constexpr uint zeroWidthNonJoiner = 0x200C;
constexpr uint zeroWidthJoiner = 0x200D;

/// Control characters, separators of lines, and invisible format characters.
bool isUnsafe(uint character)
{
    if (character == zeroWidthNonJoiner || character == zeroWidthJoiner) {
        return false;
    }
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

QString escaped(uint character)
{
    if (character < 0x100) {
        return QString::asprintf("\\x%02x", character);
    }
    return QString::asprintf(character < 0x10000 ? "\\u%04x" : "\\U%08x", character);
}

} // namespace

QString safeText(const QString& text)
{
    QString safe;
    safe.reserve(text.size());
    for (const uint character : text.toUcs4()) { // unpaired surrogates become U+FFFD
        if (isUnsafe(character)) {
            safe += escaped(character);
        } else {
            appendCodePoint(safe, character);
        }
    }
    return safe;
}

QByteArray safeJson(const QByteArray& document)
{
    QString safe;
    for (const uint character : QString::fromUtf8(document).toUcs4()) { // no other control characters
        QString units;
        appendCodePoint(units, character);
        if (character == '\n' || !isUnsafe(character)) {
            safe += units;
            continue;
        }
        for (const QChar unit : units) {
            safe += QString::asprintf("\\u%04x", static_cast<uint>(unit.unicode()));
        }
    }
    return safe.toUtf8();
}
