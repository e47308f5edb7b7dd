#include "VisualFeel.h"

#include "QtVersion.h"
#include "WindowParts.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsPixmapItem>
#include <QGraphicsView>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTextLayout>
#include <QToolButton>
#include <QTreeWidget>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace {

constexpr double leastContrast = 4.5;
constexpr double leastFrameContrast = 3;
constexpr int magnification = 3; // so that letter strokes contain pixels of the full text colour

QString sizeText(QSize size)
{
    return QString("%1x%2").arg(size.width()).arg(size.height());
}

// ---------------------------------------------------------------------------------------------------------------------
// Space for texts

QStringList cutBelow(const QWidget* widget, QSize needed)
{
    const QSize size = widget->size();
    if (needed.width() <= size.width() && needed.height() <= size.height()) {
        return {};
    }
    return {QString("%1 needs %2 but has %3").arg(nameOf(widget), sizeText(needed), sizeText(size))};
}

QStringList cutLabel(const QLabel* label)
{
    if (label->wordWrap()) {
        return cutBelow(label,
                        QSize(label->minimumSizeHint().width(), label->heightForWidth(label->width())));
    }
    return cutBelow(label, label->sizeHint());
}

QRect editField(const QComboBox* box)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    option.editable = box->isEditable();
    option.frame = box->hasFrame();
    return box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
}

QStringList cutItems(const QComboBox* box)
{
    QStringList findings;
    const int room = editField(box).width();
    for (int i = 0; i < box->count(); ++i) {
        const int needed = box->fontMetrics().horizontalAdvance(box->itemText(i));
        if (needed > room) {
            findings << QString("%1: \"%2\" needs %3 but has %4")
                            .arg(nameOf(box), box->itemText(i))
                            .arg(needed)
                            .arg(room);
        }
    }
    return findings;
}

QRect titlePlace(const QGroupBox* group)
{
    QStyleOptionGroupBox option;
    option.initFrom(group);
    option.text = group->title();
    option.textAlignment = Qt::Alignment(group->alignment());
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    return group->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, group);
}

/// The width as drawn, which can exceed the sum of the widths of the letters.
int lineWidth(const QString& text, const QFont& font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(QWIDGETSIZE_MAX);
    layout.endLayout();
    return static_cast<int>(std::ceil(line.naturalTextWidth()));
}

QStringList cutTitle(const QGroupBox* group)
{
    const QRect place = titlePlace(group);
    const int needed = lineWidth(group->title().trimmed(), group->font());
    if (place.width() >= needed && group->rect().contains(place)) {
        return {};
    }
    return {QString("%1: the title needs %2 but has %3 of %4")
                .arg(nameOf(group))
                .arg(needed)
                .arg(place.width())
                .arg(group->width())};
}

QStringList cutTabs(const QTabBar* tabs)
{
    QStringList findings;
    for (int i = 0; i < tabs->count(); ++i) {
        const QRect place = tabs->tabRect(i);
        const int needed = tabs->fontMetrics().horizontalAdvance(tabs->tabText(i));
        if (!tabs->rect().contains(place) || place.width() < needed) {
            findings << QString("tab \"%1\" needs %2 but ends at %3 of %4")
                            .arg(tabs->tabText(i))
                            .arg(needed)
                            .arg(place.right())
                            .arg(tabs->width());
        }
    }
    return findings;
}

QStringList cutPart(const QWidget* widget)
{
    if (const auto label = qobject_cast<const QLabel*>(widget)) {
        return cutLabel(label);
    }
    if (const auto group = qobject_cast<const QGroupBox*>(widget)) {
        return cutTitle(group);
    }
    if (const auto tabs = qobject_cast<const QTabBar*>(widget)) {
        return cutTabs(tabs);
    }
    if (const auto box = qobject_cast<const QComboBox*>(widget)) {
        return cutItems(box) + cutBelow(box, QSize(0, box->sizeHint().height()));
    }
    if (qobject_cast<const QLineEdit*>(widget)) {
        return cutBelow(widget, QSize(0, widget->sizeHint().height())); // long texts scroll
    }
    if (qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget)) {
        return cutBelow(widget, widget->sizeHint());
    }
    return {};
}

/// Whether the widget shows content itself and is not a container.
bool isLeaf(const QWidget* widget)
{
    return qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget) ||
           qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QGraphicsView*>(widget);
}

QStringList covered(const QWidget& window)
{
    QStringList findings;
    QList<const QWidget*> leaves;
    for (const QWidget* widget : shown<QWidget>(window)) {
        if (!isLeaf(widget)) {
            continue;
        }
        if (widget->visibleRegion().boundingRect() != widget->rect()) {
            findings << nameOf(widget) + " is not fully visible";
        }
        for (const QWidget* other : leaves) {
            const bool related = other->isAncestorOf(widget) || widget->isAncestorOf(other);
            if (!related && placeOf(widget).intersects(placeOf(other))) {
                findings << nameOf(widget) + " overlaps " + nameOf(other);
            }
        }
        leaves << widget;
    }
    for (const auto more : window.findChildren<QToolButton*>("qt_toolbar_ext_button") +
                               window.findChildren<QToolButton*>("qt_menubar_ext_button")) {
        if (more->isVisible()) {
            findings << nameOf(more->parentWidget()) + " does not show all its actions";
        }
    }
    return findings;
}

// ---------------------------------------------------------------------------------------------------------------------
// Contrast

struct TextPlace
{
    QString who;
    QRect rect; // in the window
};

double luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double share = channel / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// Returns the highest contrast ratio between the most frequent colour and any other colour of the image.
double contrastWithin(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    QRgb background = 0;
    int most = 0;
    for (auto colour = counts.cbegin(); colour != counts.cend(); ++colour) {
        if (colour.value() > most) {
            most = colour.value();
            background = colour.key();
        }
    }
    double furthest = 1;
    for (auto colour = counts.cbegin(); colour != counts.cend(); ++colour) {
        furthest = std::max(furthest, contrast(background, colour.key()));
    }
    return furthest;
}

/// The rectangle in which a button draws its text, without the frame.
QRect contents(const QAbstractButton* button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    QStyle::SubElement part = QStyle::SE_PushButtonContents;
    if (button->inherits("QCheckBox")) {
        part = QStyle::SE_CheckBoxContents;
    } else if (button->inherits("QRadioButton")) {
        part = QStyle::SE_RadioButtonContents;
    }
    return button->style()->subElementRect(part, &option, button);
}

QList<TextPlace> textsOf(const QTabBar* tabs)
{
    QList<TextPlace> texts;
    for (int i = 0; i < tabs->count(); ++i) {
        texts << TextPlace{tabs->tabText(i), placeOf(tabs, tabs->tabRect(i).adjusted(8, 5, -8, -5))};
    }
    return texts;
}

QList<TextPlace> textsOf(const QMenuBar* bar)
{
    QList<TextPlace> texts;
    for (QAction* action : bar->actions()) {
        texts << TextPlace{action->text(), placeOf(bar, bar->actionGeometry(action).adjusted(2, 2, -2, -2))};
    }
    return texts;
}

QList<TextPlace> textsOf(const QTreeWidget* tree)
{
    constexpr int icon = 30;
    constexpr int sortMark = 24;
    QList<TextPlace> texts;
    for (int column = 0; column < tree->columnCount(); ++column) {
        const int left = tree->header()->sectionViewportPosition(column);
        const QRect section(left, 0, tree->header()->sectionSize(column), tree->header()->height());
        texts << TextPlace{tree->headerItem()->text(column),
                           placeOf(tree->header(), section.adjusted(4, 4, column == 0 ? -sortMark : -4, -4))};
        for (int row = 0; row < tree->topLevelItemCount(); ++row) {
            const QTreeWidgetItem* item = tree->topLevelItem(row);
            const int line = tree->visualItemRect(item).y();
            const QRect cell(left, line, section.width(), tree->visualItemRect(item).height());
            texts << TextPlace{item->text(column),
                               placeOf(tree->viewport(), cell.adjusted(column == 0 ? icon : 2, 2, -2, -2))};
        }
    }
    return texts;
}

QList<TextPlace> textsOf(const QWidget* widget)
{
    if (const auto label = qobject_cast<const QLabel*>(widget); label && !label->text().isEmpty()) {
        return {{nameOf(widget), placeOf(widget, label->contentsRect())}};
    }
    if (const auto button = qobject_cast<const QAbstractButton*>(widget);
        button && !button->text().isEmpty()) {
        return button->inherits("QToolButton")
                   ? QList<TextPlace>()
                   : QList<TextPlace>{{nameOf(widget), placeOf(widget, contents(button))}};
    }
    if (const auto group = qobject_cast<const QGroupBox*>(widget)) {
        return {{nameOf(widget), placeOf(widget, titlePlace(group))}};
    }
    if (const auto box = qobject_cast<const QComboBox*>(widget); box && !box->currentText().isEmpty()) {
        return {{nameOf(widget), placeOf(widget, editField(box).adjusted(2, 2, -2, -2))}};
    }
    if (const auto line = qobject_cast<const QLineEdit*>(widget); line && !line->text().isEmpty()) {
        return {{nameOf(widget), placeOf(widget, line->rect().adjusted(4, 4, -4, -4))}};
    }
    if (qobject_cast<const QAbstractSpinBox*>(widget)) {
        constexpr int arrows = 24;
        return {{nameOf(widget), placeOf(widget, widget->rect().adjusted(4, 4, -arrows, -4))}};
    }
    if (const auto tabs = qobject_cast<const QTabBar*>(widget)) {
        return textsOf(tabs);
    }
    if (const auto bar = qobject_cast<const QMenuBar*>(widget)) {
        return textsOf(bar);
    }
    if (const auto tree = qobject_cast<const QTreeWidget*>(widget)) {
        return textsOf(tree);
    }
    return {};
}

QImage drawn(QWidget& window)
{
    QImage image(window.size() * magnification, QImage::Format_RGB32);
    image.setDevicePixelRatio(magnification);
    window.render(&image);
    return image;
}

/// Returns the framed rectangle: the indicator of a check box or radio button, or the whole of a field. Empty
/// for other widgets.
QRect framed(const QWidget* widget)
{
    QStyleOptionButton option;
    option.initFrom(widget);
    if (qobject_cast<const QCheckBox*>(widget)) {
        return widget->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, widget);
    }
    if (qobject_cast<const QRadioButton*>(widget)) {
        return widget->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, widget);
    }
    const bool isField = qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget) ||
                         qobject_cast<const QAbstractSpinBox*>(widget);
    return isField ? widget->rect() : QRect();
}

/// Returns the contrast ratio between a frame and its surroundings, on the side where it is lowest.
double frameContrast(const QImage& image, QRect frame)
{
    const double ratio = image.devicePixelRatio();
    const auto colourAt = [&](QPointF point) { return image.pixel((point * ratio).toPoint()); };
    const double pixel = 1 / ratio;
    const QRectF rect(frame);
    const QPointF middle = rect.center();
    const struct
    {
        QPointF edge, inwards;
    } sides[] = {
        {{rect.left(), middle.y()}, {pixel, 0}},
        {{rect.right() - pixel, middle.y()}, {-pixel, 0}},
        {{middle.x(), rect.top()}, {0, pixel}},
        {{middle.x(), rect.bottom() - pixel}, {0, -pixel}},
    };
    double least = 21;
    for (const auto& side : sides) {
        const QRgb around = colourAt(side.edge - 2 * ratio * side.inwards);
        double most = 1;
        for (int depth = 0; depth < 3 * ratio; ++depth) {
            most = std::max(most, contrast(around, colourAt(side.edge + depth * side.inwards)));
        }
        least = std::min(least, most);
    }
    return least;
}

/// With a fractional device pixel ratio, the screen blurs frames over two pixels, so the window is rendered
/// at a whole ratio instead.
QImage inWholePixels(QWidget& window)
{
    const double ratio = window.devicePixelRatioF();
    return ratio == std::floor(ratio) ? window.grab().toImage() : drawn(window);
}

/// `image` shows the whole window.
QStringList faintFrame(const QWidget* widget, const QImage& image)
{
    const QRect frame = framed(widget);
    if (!widget->isEnabled() || frame.isEmpty()) {
        return {};
    }
    const double found = frameContrast(image, placeOf(widget, frame));
    if (found >= leastFrameContrast) {
        return {};
    }
    return {QString("the frame of %1 has a contrast of %2").arg(nameOf(widget)).arg(found)};
}

void takeKeyboardAway(QWidget& window)
{
    if (window.focusWidget()) {
        window.focusWidget()->clearFocus();
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Pictures

bool isSharp(const QPixmap& picture, const QWidget& window)
{
    return !picture.isNull() && picture.devicePixelRatio() >= std::round(window.devicePixelRatioF());
}

QStringList badIcon(const QString& who, const QIcon& icon, QSize size, const QWidget& window)
{
    if (icon.isNull() || icon.availableSizes().isEmpty()) {
        return {who + " has no icon"};
    }
    return isSharp(icon.pixmap(size), window) ? QStringList() : QStringList{who + " has a blurred icon"};
}

QStringList badPicture(const QLabel* label, const QWidget& window)
{
    const QPixmap picture = pictureOf(*label);
    const bool meantAsPicture =
        !picture.isNull() || (label->text().isEmpty() && !label->accessibleName().isEmpty());
    return !meantAsPicture || isSharp(picture, window) ? QStringList()
                                                       : QStringList{nameOf(label) + " has no sharp picture"};
}

QStringList badPicture(const QGraphicsView* view, const QWidget& window)
{
    const QList<QGraphicsItem*> items =
        view->scene() ? view->scene()->items(Qt::DescendingOrder) : QList<QGraphicsItem*>();
    const auto top = items.isEmpty() ? nullptr : qgraphicsitem_cast<QGraphicsPixmapItem*>(items[0]);
    if (!top || !isSharp(top->pixmap(), window)) {
        return {nameOf(view) + " has no sharp picture"};
    }
    const QRectF seen = view->mapToScene(view->viewport()->rect()).boundingRect();
    const bool whole = seen.adjusted(-1, -1, 1, 1).contains(top->sceneBoundingRect());
    return whole ? QStringList() : QStringList{nameOf(view) + " clips its picture"};
}

} // namespace

QStringList cutTexts(QWidget& window)
{
    QStringList findings;
    forEachPage(window, [&] {
        for (const QWidget* widget : shown<QWidget>(window)) {
            findings << cutPart(widget);
        }
        findings << covered(window);
    });
    findings.removeDuplicates();
    return findings;
}

QStringList cutColumnHeads(QWidget& window)
{
    QStringList findings;
    for (const QTreeWidget* tree : shown<QTreeWidget>(window)) {
        const int margin = tree->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, tree->header());
        const int mark = tree->style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, tree->header());
        for (int column = 0; column < tree->columnCount(); ++column) {
            const int room = tree->header()->sectionSize(column) - (column == tree->sortColumn() ? mark : 0);
            const int needed =
                tree->header()->fontMetrics().horizontalAdvance(tree->headerItem()->text(column)) +
                2 * margin;
            if (needed > room) {
                findings << QString("column \"%1\" needs %2 but has %3")
                                .arg(tree->headerItem()->text(column))
                                .arg(needed)
                                .arg(room);
            }
        }
    }
    return findings;
}

QStringList tooLarge(QWidget& window, QSize most)
{
    const QSize size = window.size();
    if (size.width() <= most.width() && size.height() <= most.height()) {
        return {};
    }
    return {QString("the window is %1, larger than %2").arg(sizeText(size), sizeText(most))};
}

QStringList faintTexts(QWidget& window)
{
    takeKeyboardAway(window);
    QStringList findings;
    forEachPage(window, [&] {
        const QImage image = drawn(window);
        for (const QWidget* widget : shown<QWidget>(window)) {
            if (!widget->isEnabled()) {
                continue;
            }
            for (const TextPlace& text : textsOf(widget)) {
                const QRect part(text.rect.topLeft() * magnification, text.rect.size() * magnification);
                const double ratio = contrastWithin(image.copy(part & image.rect()));
                if (ratio < leastContrast) {
                    findings << QString("%1 has a contrast of %2").arg(text.who).arg(ratio);
                }
            }
        }
    });
    findings.removeDuplicates();
    return findings;
}

QStringList faintFrames(QWidget& window)
{
    takeKeyboardAway(window);
    QStringList findings;
    forEachPage(window, [&] {
        const QImage image = inWholePixels(window);
        for (const QWidget* widget : shown<QWidget>(window)) {
            findings << faintFrame(widget, image);
        }
    });
    return findings;
}

QStringList faintKeyboardFrames(QWidget& window)
{
    QStringList findings;
    forEachPage(window, [&] {
        for (QWidget* widget : shown<QWidget>(window)) {
            if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
                widget->setFocus(Qt::TabFocusReason);
                findings << faintFrame(widget, inWholePixels(window));
            }
        }
    });
    takeKeyboardAway(window);
    return findings;
}

QStringList missingPictures(QWidget& window)
{
    QStringList findings;
    if (!window.inherits("QProgressDialog")) {
        findings << badIcon("the window", window.windowIcon(), QSize(22, 22), window);
    }
    forEachPage(window, [&] {
        for (const QLabel* label : shown<QLabel>(window)) {
            findings << badPicture(label, window);
        }
        for (const QGraphicsView* view : shown<QGraphicsView>(window)) {
            findings << badPicture(view, window);
        }
        for (const QAbstractButton* button : shown<QAbstractButton>(window)) {
            if (button->text().isEmpty() || !button->icon().isNull() || button->inherits("QToolButton")) {
                findings << badIcon(nameOf(button), button->icon(), button->iconSize(), window);
            }
        }
    });
    for (const QTreeWidget* tree : shown<QTreeWidget>(window)) {
        for (int row = 0; row < tree->topLevelItemCount(); ++row) {
            findings << badIcon("row " + tree->topLevelItem(row)->text(0), tree->topLevelItem(row)->icon(0),
                                tree->iconSize(), window);
        }
    }
    findings.removeDuplicates();
    return findings;
}
