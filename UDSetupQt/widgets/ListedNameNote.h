// The line below a name field that shows how the name will be listed.
#pragma once

#include "ElidedLabel.h"

class QLineEdit;

/// What a window does with an empty name.
enum class EmptyName
{
    isStored,
    isRefused
};

/// Hidden as long as the typed name will be listed as it is.
class ListedNameNote : public ElidedLabel
{
    Q_OBJECT

public:
    explicit ListedNameNote(QWidget* parent = nullptr);

    /// Shows or hides itself for the text of the field, which has the line as accessible description
    /// meanwhile. True when it appears for the first time: the window has to make room for it. It keeps the
    /// room when it is hidden again, so that the window does not change its size with every letter.
    bool showFor(QLineEdit& field, EmptyName emptyName);
};
