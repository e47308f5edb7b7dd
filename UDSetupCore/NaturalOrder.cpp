#include "NaturalOrder.h"

bool naturalLess(const QString& a, const QString& b)
{
    for (int i = 0;; ++i) {
        if (i == a.size() || i == b.size()) {
            return i == a.size() && i != b.size();
        }
        if (a[i].isNumber() && b[i].isNumber()) {
            int j = i + 1;
            while (j < a.size() && j < b.size() && a[j].isNumber() && b[j].isNumber()) {
                ++j;
            }
            if (j < b.size() && b[j].isNumber()) {
                return true;
            }
            if (j < a.size() && a[j].isNumber()) {
                return false;
            }
            // toInt() returns 0 for a value that does not fit in an int.
            const int valueA = a.mid(i, j - i).toInt();
            const int valueB = b.mid(i, j - i).toInt();
            if (valueA != valueB) {
                return valueA < valueB;
            }
            i = j - 1;
        } else if (a[i] != b[i]) {
            return a[i] < b[i];
        }
    }
}
