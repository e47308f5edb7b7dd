// Dialogs with the fixed size of their contents.
#pragma once

class QDialog;

/// Fixes the size of a dialog that has a layout at the size that adjustSize gives. Makes the dialog higher if
/// its contents need it: adjustSize stops at two thirds of the screen, which would cut text in a large font
/// on a small screen. May be called again when the contents change.
void fixToContents(QDialog& dialog);
