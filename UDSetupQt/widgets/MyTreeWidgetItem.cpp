#include "MyTreeWidgetItem.h"

#include "NaturalOrder.h"

#include <QTreeWidget>

bool MyTreeWidgetItem::operator<(const QTreeWidgetItem& other) const
{
    const int column = treeWidget() ? treeWidget()->sortColumn() : 0;
    if (column != 0) {
        return text(column) < other.text(column);
    }
    return naturalLess(text(0), other.text(0));
}
