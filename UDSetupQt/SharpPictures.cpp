#include "SharpPictures.h"

#include <QIcon>
#include <QLabel>
#include <QVariant>

void showSharpPictures(QWidget& form)
{
    for (QLabel* label : form.findChildren<QLabel*>()) {
        const QString path = label->property("picture").toString();
        if (!path.isEmpty()) {
            label->setPixmap(QIcon(path).pixmap(label->pixmap(Qt::ReturnByValue).size()));
        }
    }
}
