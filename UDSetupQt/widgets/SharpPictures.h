// Pictures that stay sharp on high-resolution screens.
#pragma once

class QWidget;

/// A form names the picture of a label twice: as the pixmap, which sets the size but has only the standard
/// resolution, and as the property "picture", a path in the resource tree. Replaces the pixmap by the file of
/// twice the size ("@2x") if the screen can show it. Labels without that property are not changed.
/// User-interface thread. Call it after the form is set up.
void showSharpPictures(QWidget& form);
