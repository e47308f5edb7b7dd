// Visible frames around the boxes and fields on tabs, and the grey that is their base colour.
#pragma once

class QColor;
class QTabWidget;
class QWidget;

/// A weaker colour than that of the text that still contrasts with the background: three fifths of the way to
/// the text colour.
QColor greyBetween(const QColor& ground, const QColor& text);

/// Gives the frames of boxes, fields and buttons on the pages a visible base colour. The style draws a frame
/// in the window colour, darkened. On a page in the field colour that is hard to see, and invisible on a dark
/// desktop. The new base colour lies between the field colour and the text colour of the application. The
/// style draws the frame of a focused widget in the selection colour, also darkened; on a dark desktop this
/// function makes the selection light and selected text dark. Call it again when the application's palette
/// changes. It replaces palettes set on individual widgets.
void setFrameColours(const QTabWidget& tabs);

/// The same for one field that is directly on a window.
void setFrameColours(QWidget& part);
