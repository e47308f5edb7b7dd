// The differences between Qt 5.15 and Qt 6. The only file that checks the version of Qt.
#pragma once

#include <QCoreApplication>
#include <QLabel>
#include <QLibraryInfo>
#include <QPixmap>
#include <QString>

/// Scales windows and pictures with the screen. Call it before the application object is created. Qt 6 always
/// scales.
inline void enableScreenScaling()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

/// The folder of Qt's own catalogues.
inline QString qtTranslationFolder()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

/// Null if the label shows no picture.
inline QPixmap pictureOf(const QLabel& label)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return label.pixmap(Qt::ReturnByValue);
#else
    return label.pixmap();
#endif
}
