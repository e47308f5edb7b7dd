// Pictures that stay sharp on screens with more pixels.
#pragma once

class QWidget;

/// A form names the picture of a label twice: as its pixmap, which gives the size and never has more pixels,
/// and as the property "picture", the path in the resource tree. This puts the file of twice the size
/// ("@2x") in place of the pixmap where the screen shows it. Labels without that property stay as they are.
/// User-interface thread; to be called once the form is set up.
void showSharpPictures(QWidget& form);
