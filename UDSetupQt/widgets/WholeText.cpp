#include "WholeText.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace {

constexpr int longestTip = 1000; // characters; more than any screen shows

} // namespace

void showWholeText(const QPoint& globalPos, const QString& text, QWidget* widget, const QRect& place)
{
    const QString whole = text.left(longestTip).toHtmlEscaped();
    QToolTip::showText(globalPos, QStringLiteral("<span>%1</span>").arg(whole), widget, place);
}

bool WholeTextDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                  const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const bool cut = index.isValid() && sizeHint(option, index).width() > option.rect.width();
    if (event->type() != QEvent::ToolTip || !cut) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    showWholeText(event->globalPos(), index.data().toString(), view->viewport(), option.rect);
    return true;
}
