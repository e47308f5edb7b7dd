// The tool tip that tells the whole of a text which is cut where it stands.
#pragma once

#include <QRect>
#include <QStyledItemDelegate>

class QPoint;
class QWidget;

/// Shows the text as it is, markup included; of a very long one the beginning. It goes when the mouse leaves
/// `place`, in the coordinates of `widget`; of the whole widget when it is empty.
void showWholeText(const QPoint& globalPos, const QString& text, QWidget* widget, const QRect& place = {});

/// The cells of a list: one whose text does not fit has its whole text as tool tip. For the view with
/// setItemDelegate.
class WholeTextDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};
