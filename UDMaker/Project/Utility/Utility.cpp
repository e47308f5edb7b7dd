#include "Win_def_MFC.h"
