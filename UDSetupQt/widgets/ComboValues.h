// Combo boxes whose items have a number.
#pragma once

#include "Win_def.h"

#include <QComboBox>

/// Selects the item with `value`, or none.
inline void selectValue(QComboBox* box, UINT value)
{
    box->setCurrentIndex(box->findData(value));
}

/// The number of the selected item; 0 if none is selected.
inline UINT selectedValue(const QComboBox* box)
{
    return box->currentData().toUInt();
}

/// Removes the item with `value`, if there is one.
inline void removeValue(QComboBox* box, UINT value)
{
    box->removeItem(box->findData(value));
}
