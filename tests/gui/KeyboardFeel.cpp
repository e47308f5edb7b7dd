#include "KeyboardFeel.h"

#include "QtVersion.h"
#include "WindowParts.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QGraphicsView>
#include <QGroupBox>
#include <QHash>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTest>

namespace {

constexpr int longestRound = 60; // tab stops; no window has that many

/// The accessible name. Qt falls back on the title of the surrounding group box, which does not name the
/// widget itself: empty in that case.
QString spokenName(QWidget* widget)
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    const QString name = spoken ? spoken->text(QAccessible::Name).trimmed() : QString();
    const auto group = qobject_cast<const QGroupBox*>(widget->parentWidget());
    const bool fallback = group && widget->accessibleName().isEmpty() && name == group->title().trimmed();
    return fallback ? QString() : name;
}

bool isPicture(const QWidget* widget)
{
    const auto label = qobject_cast<const QLabel*>(widget);
    return qobject_cast<const QGraphicsView*>(widget) || (label && !pictureOf(*label).isNull());
}

/// Whether a click or a key can focus the widget. Parts of a composite widget have a focus proxy.
bool takesFocus(const QWidget* widget)
{
    return widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy() &&
           !qobject_cast<const QLabel*>(widget);
}

bool isTabStop(const QWidget* widget)
{
    return takesFocus(widget) && (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled();
}

/// A control without a text of its own, which needs a label.
bool isField(const QWidget* widget)
{
    return qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget) ||
           qobject_cast<const QLineEdit*>(widget);
}

/// The closest label to the left of the field, on the same line; null without one.
const QLabel* labelAhead(const QWidget& window, const QWidget* field)
{
    const QRect place = placeOf(field);
    const QLabel* closest = nullptr;
    for (const QLabel* label : shown<QLabel>(window)) {
        const QRect other = placeOf(label);
        const bool ahead = other.right() < place.left() && !label->text().isEmpty() &&
                           std::abs(other.center().y() - place.center().y()) < place.height() / 2;
        if (ahead && (!closest || other.right() > placeOf(closest).right())) {
            closest = label;
        }
    }
    return closest;
}

/// Collects mnemonics and reports each letter that is already taken.
class Letters
{
public:
    explicit Letters(QStringList& findings) : m_findings(findings) {}

    void add(const QString& text)
    {
        const QString letter = QKeySequence::mnemonic(text).toString();
        if (letter.isEmpty()) {
            return;
        }
        if (m_taken.contains(letter)) {
            m_findings << QString("%1: \"%2\" and \"%3\"").arg(letter, m_taken[letter], text);
        }
        m_taken[letter] = text;
    }
    void add(const QList<QAction*>& actions)
    {
        for (const QAction* action : actions) {
            add(action->text());
        }
    }

private:
    QStringList& m_findings;
    QHash<QString, QString> m_taken;
};

/// Whether `next` follows `one` in reading order.
bool readsOn(const QRect& one, const QRect& next)
{
    if (next.bottom() < one.top()) {
        return false;
    }
    const bool sameLine = next.top() <= one.bottom();
    return !sameLine || next.left() >= one.left();
}

/// The tab stops in the order of Tab, starting with the focused one, until one repeats.
QList<QWidget*> roundOfTabs(QWidget& window)
{
    QList<QWidget*> round;
    while (round.size() < longestRound) {
        QWidget* stop = window.focusWidget();
        if (!stop || round.contains(stop)) {
            break;
        }
        round << stop;
        QTest::keyClick(stop, Qt::Key_Tab);
    }
    return round;
}

} // namespace

QStringList namelessParts(QWidget& window)
{
    QStringList findings;
    forEachPage(window, [&] {
        for (QWidget* widget : shown<QWidget>(window)) {
            if ((takesFocus(widget) || isPicture(widget)) && spokenName(widget).isEmpty()) {
                findings << nameOf(widget) + " has no accessible name";
            }
        }
    });
    findings.removeDuplicates();
    return findings;
}

QStringList labelsThatLeadNowhere(QWidget& window)
{
    QStringList findings;
    forEachPage(window, [&] {
        for (const QWidget* field : shown<QWidget>(window)) {
            const QLabel* label = isField(field) ? labelAhead(window, field) : nullptr;
            if (label && label->buddy() != field) {
                findings << QString("%2 is not the buddy of %1").arg(nameOf(label), nameOf(field));
            }
        }
        for (const QLabel* label : shown<QLabel>(window)) {
            if (label->buddy() && label->buddy()->isVisible() && !takesFocus(label->buddy())) {
                findings << QString("the buddy of %1 is %2, which does not accept the focus")
                                .arg(nameOf(label), nameOf(label->buddy()));
            }
        }
    });
    return findings;
}

QStringList mnemonicClashes(QWidget& window)
{
    QStringList findings;
    forEachPage(window, [&] {
        Letters letters(findings);
        for (const QAbstractButton* button : shown<QAbstractButton>(window)) {
            letters.add(button->text());
        }
        for (const QGroupBox* group : shown<QGroupBox>(window)) {
            letters.add(group->title());
        }
        for (const QLabel* label : shown<QLabel>(window)) {
            letters.add(label->buddy() ? label->text() : QString());
        }
        for (const QTabBar* tabs : shown<QTabBar>(window)) {
            for (int i = 0; i < tabs->count(); ++i) {
                letters.add(tabs->tabText(i));
            }
        }
        for (const QMenuBar* bar : shown<QMenuBar>(window)) {
            letters.add(bar->actions());
        }
    });
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        Letters(findings).add(menu->actions());
    }
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->contextMenuPolicy() == Qt::ActionsContextMenu) {
            Letters(findings).add(widget->actions());
        }
    }
    return findings;
}

QStringList badFirstFocus(QWidget& window)
{
    const QWidget* first = window.focusWidget();
    if (!first) {
        return {"no widget has the focus"};
    }
    if (!first->isVisible() || !isTabStop(first)) {
        return {nameOf(first) + " has the focus but is not a visible tab stop"};
    }
    const auto button = qobject_cast<const QPushButton*>(first);
    if (button && !button->isDefault()) {
        return {nameOf(first) + " has the focus but is not the default button"};
    }
    if (qobject_cast<const QTabBar*>(first)) {
        return {"the tabs have the focus instead of the first field"};
    }
    return {};
}

QStringList tabOrderBreaks(QWidget& window)
{
    QStringList findings;
    forEachPage(window, [&] {
        const QList<QWidget*> round = roundOfTabs(window);
        for (const QWidget* widget : shown<QWidget>(window)) {
            if (isTabStop(widget) && !round.contains(const_cast<QWidget*>(widget))) {
                findings << nameOf(widget) + " is not reached by the tab key";
            }
        }
        QStringList order, jumps;
        for (int i = 0; i < round.size(); ++i) {
            const QWidget* next = round[(i + 1) % round.size()];
            order << nameOf(round[i]);
            if (!readsOn(placeOf(round[i]), placeOf(next))) {
                jumps << QString("%1 to %2").arg(nameOf(round[i]), nameOf(next));
            }
        }
        if (jumps.size() > 1) { // the one jump allowed is from the last stop to the first
            findings << QString("the tab order jumps back from %1; it is: %2")
                            .arg(jumps.join(", from "), order.join(", "));
        }
    });
    return findings;
}

QStringList badDefaultButton(QWidget& window)
{
    QStringList defaults;
    for (const QPushButton* button : shown<QPushButton>(window)) {
        if (button->isDefault()) {
            defaults << nameOf(button);
        }
    }
    return defaults.size() == 1 ? QStringList() : QStringList{"default buttons: " + defaults.join(", ")};
}
