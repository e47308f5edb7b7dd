#include "ElidedLabel.h"

#include "WholeText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int widestHint = 40;   // characters
constexpr int longestLine = 500; // characters; more than any screen shows

bool breaksLine(QChar character)
{
    return character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

} // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QString ElidedLabel::line() const
{
    QString shown = text().left(longestLine);
    for (QChar& character : shown) {
        if (breaksLine(character)) {
            character = QLatin1Char(' ');
        }
    }
    return shown;
}

bool ElidedLabel::isElided() const
{
    return text().size() > longestLine || fontMetrics().horizontalAdvance(line()) > contentsRect().width();
}

QSize ElidedLabel::sizeHint() const
{
    const QMargins margins = contentsMargins();
    const int widest = widestHint * fontMetrics().averageCharWidth();
    const int width = text().size() > longestLine ? widest : fontMetrics().horizontalAdvance(line());
    return {std::min(width, widest) + margins.left() + margins.right(),
            fontMetrics().height() + margins.top() + margins.bottom()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

bool ElidedLabel::event(QEvent* e)
{
    if (e->type() == QEvent::ToolTip && isElided()) {
        showWholeText(static_cast<QHelpEvent*>(e)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(e);
}

void ElidedLabel::paintEvent(QPaintEvent* e)
{
    const QString shown = line();
    if (shown == text() && !isElided()) {
        QLabel::paintEvent(e); // paints the selection too
        return;
    }
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), QStyle::visualAlignment(layoutDirection(), alignment()),
                          palette(), isEnabled(),
                          fontMetrics().elidedText(shown, Qt::ElideRight, contentsRect().width()),
                          foregroundRole());
}
