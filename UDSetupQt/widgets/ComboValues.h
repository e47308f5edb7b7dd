// Combo boxes whose items bear a number.
#pragma once

#include "Win_def.h"

#include <QComboBox>

/// Selects the item that bears `value`, or none.
inline void selectValue(QComboBox* box, UINT value)
{
    box->setCurrentIndex(box->findData(value));
}

/// The number of the selected item; 0 when none is selected.
inline UINT selectedValue(const QComboBox* box)
{
    return box->currentData().toUInt();
}

/// Takes the item that bears `value` away, if there is one.
inline void removeValue(QComboBox* box, UINT value)
{
    box->removeItem(box->findData(value));
}
