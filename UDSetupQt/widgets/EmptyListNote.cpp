#include "EmptyListNote.h"

#include "FrameColours.h"

#include <QEvent>
#include <QTreeWidget>

namespace {

constexpr int distance = 12; // pixels from the edges

} // namespace

EmptyListNote::EmptyListNote(const QString& text, QTreeWidget* list)
    : QLabel(text, list), m_description(list->accessibleDescription())
{
    setObjectName(QStringLiteral("labelEmptyList"));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(distance);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    takeColours();
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(list->model(), signal, this, &EmptyListNote::follow);
    }
    connect(list->model(), &QAbstractItemModel::modelReset, this, &EmptyListNote::follow);
    follow();
}

QTreeWidget* EmptyListNote::list() const
{
    return qobject_cast<QTreeWidget*>(parent());
}

bool EmptyListNote::eventFilter(QObject* watched, QEvent* event)
{
    if (list() == nullptr) {
        return false;
    }
    switch (event->type()) {
    case QEvent::PaletteChange:
        if (watched == list()) {
            takeColours();
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show: // the first layout sends neither of the other two
        setGeometry(list()->viewport()->geometry());
        break;
    default:
        break;
    }
    return QLabel::eventFilter(watched, event);
}

void EmptyListNote::takeColours()
{
    QPalette colours = list()->palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        colours.setColor(
            group, QPalette::WindowText,
            greyBetween(colours.color(group, QPalette::Base), colours.color(group, QPalette::Text)));
    }
    setPalette(colours);
}

void EmptyListNote::follow()
{
    if (list() == nullptr) {
        return;
    }
    const bool empty = list()->topLevelItemCount() == 0;
    list()->setAccessibleDescription(empty ? text() : m_description);
    setVisible(empty);
}
