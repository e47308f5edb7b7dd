// Combo boxes whose items have a number.
#pragma once

#include "Win_def.h"

#include <QComboBox>

#include <optional>

/// Selects the item with `value`, or none if it is empty or there is no such item.
inline void selectValue(QComboBox* box, std::optional<UINT> value)
{
    box->setCurrentIndex(value ? box->findData(*value) : -1);
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
