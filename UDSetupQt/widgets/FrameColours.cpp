#include "FrameColours.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPalette>
#include <QTabWidget>

#include <algorithm>

namespace {

constexpr int darkening = 140;  // percent: the style darkens the base colour of a frame by this
constexpr int leastLight = 170; // of 255: minimum lightness of a focused frame's base colour

bool hasFrame(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget);
}

/// Three fifths of the way. Half would suffice if frames always covered whole pixels; on some screens they do
/// not.
int between(int one, int other)
{
    return one + (other - one) * 3 / 5;
}

QColor atLeastAsLight(const QColor& colour, int lightness)
{
    return QColor::fromHsl(colour.hslHue(), colour.hslSaturation(), std::max(colour.lightness(), lightness));
}

} // namespace

QColor greyBetween(const QColor& ground, const QColor& text)
{
    return {between(ground.red(), text.red()), between(ground.green(), text.green()),
            between(ground.blue(), text.blue())};
}

void setFrameColours(QWidget& part)
{
    QPalette colours; // colours not set here follow the application
    const QPalette application = QApplication::palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor& ground = application.color(group, QPalette::Base);
        const QColor& text = application.color(group, QPalette::Text);
        colours.setColor(group, QPalette::Window, greyBetween(ground, text).lighter(darkening));
        if (ground.lightness() < text.lightness()) {
            const QColor& selection = application.color(group, QPalette::Highlight);
            colours.setColor(group, QPalette::Highlight, atLeastAsLight(selection, leastLight));
            colours.setColor(group, QPalette::HighlightedText, ground);
        }
    }
    part.setPalette(colours);
}

void setFrameColours(const QTabWidget& tabs)
{
    for (int i = 0; i < tabs.count(); ++i) {
        for (QWidget* part : tabs.widget(i)->findChildren<QWidget*>()) {
            if (hasFrame(part)) {
                setFrameColours(*part);
            }
        }
    }
}
