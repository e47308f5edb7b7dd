// Checks that a window is usable without a mouse and with a screen reader. Each check returns one line for
// each finding, over all pages unless it concerns the initial state only.
#pragma once

#include <QStringList>
#include <QWidget>

/// Controls and pictures that a screen reader cannot name.
QStringList namelessParts(QWidget& window);
/// Labels to the left of a field that are not its buddy, and labels whose buddy takes no focus.
QStringList labelsThatLeadNowhere(QWidget& window);
/// Mnemonics that two texts of one page or of one menu share.
QStringList mnemonicClashes(QWidget& window);
/// A window that opens without a useful focus: on nothing, on a widget that Tab does not reach, on a button
/// that is not the default, or on the tabs.
QStringList badFirstFocus(QWidget& window);
/// Controls that Tab does not reach, or reaches out of reading order. Sends key events to the window.
QStringList tabOrderBreaks(QWidget& window);
/// A window with no default button, or with more than one.
QStringList badDefaultButton(QWidget& window);
