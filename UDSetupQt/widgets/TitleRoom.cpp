#include "TitleRoom.h"

#include <QGroupBox>
#include <QProxyStyle>
#include <QStyleOption>

namespace {

class WideTitles : public QProxyStyle
{
public:
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override
    {
        QRect place = QProxyStyle::subControlRect(control, option, part, widget);
        if (control == CC_GroupBox && part == SC_GroupBoxLabel && option->direction == Qt::LeftToRight) {
            place.setRight(option->rect.right());
        }
        return place;
    }
};

} // namespace

void giveTitlesRoom(QWidget& form)
{
    auto style = new WideTitles;
    style->setParent(&form);
    for (QGroupBox* group : form.findChildren<QGroupBox*>()) {
        group->setStyle(style);
    }
}
