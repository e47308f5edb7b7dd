// A row of the publisher list. Names sort in natural order, the other columns as plain text.
#pragma once

#include <QTreeWidgetItem>

class MyTreeWidgetItem : public QTreeWidgetItem
{
public:
    using QTreeWidgetItem::QTreeWidgetItem;
    bool operator<(const QTreeWidgetItem& other) const override;
};
