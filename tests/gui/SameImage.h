// Compares what an icon shows with an image of the resource tree.
#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QString>

/// Whether the icon, asked for a square of so many pixels, gives the image of that file unscaled.
inline bool showsImage(const QIcon& icon, const QString& path, int size)
{
    const QImage file(path);
    const QImage shown = icon.pixmap(size, size).toImage();
    return file.size() == QSize(size, size) && shown == QPixmap(path).toImage();
}
