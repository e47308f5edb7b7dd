// Which rows the property dialog has for a family of models.
#pragma once

#include "ModelTable.h"

struct PropertyRows
{
    bool stacker3 = true;
    bool batchMode = true;         ///< batch mode among the publish modes
    bool secondDrive = true;       ///< the choice of the drives, and wear and version of drive 2
    bool discAndBoxFigures = true; ///< the count of discs and the space of the maintenance box
    bool serverVersions = true;    ///< the versions of the server and its administration tool
};

/// An unknown family has the rows of ModelFamily::rt300.
PropertyRows propertyRows(ModelFamily family);
