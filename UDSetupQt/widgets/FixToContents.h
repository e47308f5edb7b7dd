// Dialogs that stand at the size of what they hold.
#pragma once

class QDialog;

/// May be called again when the contents have changed. Fixes a dialog with a layout at the size that
/// adjustSize gives, and makes it as high as its contents need where adjustSize falls short: it stops at two
/// thirds of the screen, which would cut the text of a large font on a small screen.
void fixToContents(QDialog& dialog);
