// Frames that can be seen around the boxes and fields on tabs, and the grey that they start from.
#pragma once

class QColor;
class QTabWidget;
class QWidget;

/// A weaker colour than the text that still stands out from the ground: three fifths of the way to the text.
QColor greyBetween(const QColor& ground, const QColor& text);

/// The style draws the frames of boxes, fields and buttons in the colour of windows, darkened. On pages in
/// the colour of fields that stands out little, and not at all when the desktop is dark. Gives all of them on
/// the pages a colour between the application's fields and their texts to start from. What has the keyboard
/// has a frame in the colour of the selection, darkened as well: on a dark desktop it starts from a light
/// one, on which selected text is dark. To be called again when the application's palette changes; replaces
/// palettes that they were given one by one.
void setFrameColours(const QTabWidget& tabs);

/// The same for one field, which stands on the bare window.
void setFrameColours(QWidget& part);
