#include "PropertyRows.h"

PropertyRows propertyRows(ModelFamily family)
{
    const bool oneDrive = family == ModelFamily::rt30;
    const bool ofServer = family == ModelFamily::network;
    return {.stacker3 = !oneDrive,
            .batchMode = !oneDrive,
            .secondDrive = !oneDrive,
            .discAndBoxFigures = !oneDrive && !ofServer,
            .serverVersions = ofServer};
}
