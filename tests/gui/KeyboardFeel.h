// What is wrong with a window for somebody who has no mouse, or cannot see it. Each function looks at every
// page and gives one line for each finding; none when all is well.
#pragma once

#include <QStringList>
#include <QWidget>

/// Controls and pictures that a screen reader cannot name.
QStringList namelessParts(QWidget& window);
/// Labels that stand ahead of a control and do not lead to it, and those that lead to nothing.
QStringList labelsThatLeadNowhere(QWidget& window);
/// Letters that two texts of one page, or of one menu, are reached by.
QStringList mnemonicClashes(QWidget& window);
/// The window opens with the keyboard at a place where nothing can be done.
QStringList badFirstFocus(QWidget& window);
/// Controls that the tab key does not reach, or reaches against the order of reading. Types into the window.
QStringList tabOrderBreaks(QWidget& window);
/// Not exactly one button answers to Enter.
QStringList badDefaultButton(QWidget& window);
