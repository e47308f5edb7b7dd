#include "ListedNameNote.h"

#include "ListedName.h"
#include "OneLine.h"

#include <QLineEdit>

ListedNameNote::ListedNameNote(QWidget* parent) : ElidedLabel(parent)
{
    hide();
}

bool ListedNameNote::showFor(QLineEdit& field, EmptyName emptyName)
{
    const QString typed = field.text();
    const QString line = oneLine(typed);
    const QString listed = QString::fromStdString(listedName(line.toStdString()));
    const bool isRefused = line.isEmpty() && emptyName == EmptyName::isRefused;
    const bool differs = listed != typed && !isRefused;
    if (differs) {
        setText(listed.isEmpty() ? tr("It will be listed without a name.")
                                 : tr("It will be listed as \"%1\".").arg(listed));
    }
    field.setAccessibleDescription(differs ? text() : QString());
    setVisible(differs);

    QSizePolicy policy = sizePolicy();
    if (!differs || policy.retainSizeWhenHidden()) {
        return false;
    }
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    return true;
}
