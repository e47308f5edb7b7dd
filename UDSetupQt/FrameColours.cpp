#include "FrameColours.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPalette>
#include <QTabWidget>

namespace {

constexpr int darkening = 140; // percent: by so much the style darkens the colour that a frame starts from

bool hasFrame(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget);
}

/// Three fifths of the way. Half of it would do, if no screen drew a frame over parts of its pixels.
int between(int one, int other)
{
    return one + (other - one) * 3 / 5;
}

QColor between(const QColor& one, const QColor& other)
{
    return {between(one.red(), other.red()), between(one.green(), other.green()),
            between(one.blue(), other.blue())};
}

} // namespace

void setFrameColours(const QTabWidget& tabs)
{
    QPalette colours; // what is not set here follows the application
    const QPalette application = QApplication::palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor frame =
            between(application.color(group, QPalette::Base), application.color(group, QPalette::Text));
        colours.setColor(group, QPalette::Window, frame.lighter(darkening));
    }
    for (int i = 0; i < tabs.count(); ++i) {
        for (QWidget* part : tabs.widget(i)->findChildren<QWidget*>()) {
            if (hasFrame(part)) {
                part->setPalette(colours);
            }
        }
    }
}
