// Compares an icon with an image from the resources.
#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QString>

/// Returns whether the icon's pixmap of `size` by `size` pixels is the unscaled image of the file.
inline bool showsImage(const QIcon& icon, const QString& path, int size)
{
    const QImage file(path);
    const QImage shown = icon.pixmap(size, size).toImage();
    return file.size() == QSize(size, size) && shown == QPixmap(path).toImage();
}
