// What is wrong with a window for somebody who looks at it. Each function looks at every page and gives one
// line for each finding; none when all is well.
#pragma once

#include <QSize>
#include <QStringList>
#include <QWidget>

/// Texts that are wider or higher than their place, and widgets that lie under others or outside.
QStringList cutTexts(QWidget& window);
/// Column heads that are cut. The user can draw them wider.
QStringList cutColumnHeads(QWidget& window);
/// A window that is larger than so many pixels.
QStringList tooLarge(QWidget& window, QSize most);
/// Enabled texts that do not stand out from their background by a ratio of 4.5, on the screen as it is drawn.
/// Takes the keyboard away from the window, for a focus frame would be taken for a part of a text.
QStringList faintTexts(QWidget& window);
/// Enabled boxes and fields whose frames do not stand out from what is around them by a ratio of 3, on the
/// screen as it is. Takes the keyboard away from the window, for a focus frame has colours of its own.
QStringList faintFrames(QWidget& window);
/// The same of each while it has the keyboard, which has to be with the window.
QStringList faintKeyboardFrames(QWidget& window);
/// Pictures that are not there, and pictures that have fewer pixels than the screen shows.
QStringList missingPictures(QWidget& window);
