// Group titles whose last letter is not cut.
#pragma once

class QWidget;

/// The style gives a group title the sum of the widths of its letters. The drawn line is up to a few pixels
/// wider, so that with many fonts the end is cut. This function gives all group titles in the form the width
/// of their group. User-interface thread. Call it after the form is set up.
void giveTitlesRoom(QWidget& form);
