// Titles of groups that keep their last letter.
#pragma once

class QWidget;

/// The style gives the title of a group the width of its letters as they are drawn one by one. A line of text
/// is up to some pixels wider, so that its end is cut with many a font. This gives the titles of all groups
/// in the form the width of their group. User-interface thread; to be called once the form is set up.
void giveTitlesRoom(QWidget& form);
