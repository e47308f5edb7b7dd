// The tool tip that shows the whole of a truncated text.
#pragma once

#include <QRect>
#include <QStyledItemDelegate>

class QPoint;
class QWidget;

/// Shows the text literally, including markup, up to 1000 characters. It disappears when the mouse leaves
/// `place`, in coordinates of `widget`, or the widget if `place` is empty.
void showWholeText(const QPoint& globalPos, const QString& text, QWidget* widget, const QRect& place = {});

/// Gives each cell of a list whose text does not fit its whole text as tool tip. Install it on the view with
/// setItemDelegate.
class WholeTextDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};
