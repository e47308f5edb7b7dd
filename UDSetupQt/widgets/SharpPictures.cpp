#include "SharpPictures.h"

#include "QtVersion.h"

#include <QIcon>
#include <QLabel>
#include <QVariant>

void showSharpPictures(QWidget& form)
{
    for (QLabel* label : form.findChildren<QLabel*>()) {
        const QString path = label->property("picture").toString();
        if (!path.isEmpty()) {
            label->setPixmap(QIcon(path).pixmap(pictureOf(*label).size()));
        }
    }
}
