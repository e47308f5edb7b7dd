// Checks a window for visual faults. Each function returns one line for each finding, an empty list if there
// are none. All but cutColumnHeads() and tooLarge() check every page.
#pragma once

#include <QSize>
#include <QStringList>
#include <QWidget>

/// Texts that are wider or higher than the space for them, and widgets that overlap or are clipped.
QStringList cutTexts(QWidget& window);
/// Column headers that are truncated. The user can widen them.
QStringList cutColumnHeads(QWidget& window);
/// A window that is larger than `most`, in pixels.
QStringList tooLarge(QWidget& window, QSize most);
/// Enabled texts whose contrast ratio to their background, as drawn, is below 4.5. Clears the keyboard focus,
/// because a focus frame would count as a part of a text.
QStringList faintTexts(QWidget& window);
/// Enabled boxes and fields whose frames have a contrast ratio below 3 to their surroundings, as shown on the
/// screen. Clears the keyboard focus, because a focus frame has colours of its own.
QStringList faintFrames(QWidget& window);
/// The same for each widget while it has the keyboard focus. The window must be active.
QStringList faintKeyboardFrames(QWidget& window);
/// Missing pictures, and pictures with a lower resolution than the screen.
QStringList missingPictures(QWidget& window);
