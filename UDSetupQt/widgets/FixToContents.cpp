#include "FixToContents.h"

#include <QDialog>
#include <QLayout>

#include <algorithm>

void fixToContents(QDialog& dialog)
{
    dialog.setMinimumSize(0, 0);
    dialog.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    dialog.adjustSize();
    const QSize size = dialog.size();
    const int heightOfContents = dialog.layout()->totalHeightForWidth(size.width());
    dialog.setFixedSize(size.width(), std::max(size.height(), heightOfContents));
}
