// The rows of the property dialog for each family of models.
#pragma once

#include "ModelTable.h"

struct PropertyRows
{
    bool stacker3 = true;
    bool batchMode = true;         ///< the publish modes include batch mode
    bool secondDrive = true;       ///< the choice of a drive, and the wear and version of drive 2
    bool discAndBoxFigures = true; ///< the count of completed discs and the free space of the maintenance box
    bool serverVersions = true;    ///< the versions of the server and its administration tool
};

/// An unknown family has the rows of ModelFamily::rt300.
PropertyRows propertyRows(ModelFamily family);
