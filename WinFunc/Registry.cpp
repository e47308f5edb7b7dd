#include "WinFunc.h"
