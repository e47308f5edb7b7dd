// The line below a name field that shows how the name will be listed.
#pragma once

#include "ElidedLabel.h"

class QLineEdit;

/// How a window treats an empty name.
enum class EmptyName
{
    isStored,
    isRefused
};

/// Hidden while the typed name will be listed unchanged.
class ListedNameNote : public ElidedLabel
{
    Q_OBJECT

public:
    explicit ListedNameNote(QWidget* parent = nullptr);

    /// Shows or hides the line for the text of the field. While shown, the line is also the field's
    /// accessible description. Returns true when it appears for the first time: the window must then make
    /// space for it. The line keeps its space when it is hidden again, so that the window does not change its
    /// size with every letter.
    bool showFor(QLineEdit& field, EmptyName emptyName);
};
