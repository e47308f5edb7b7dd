// Which publisher actions are available for a number of selected rows.
#pragma once

struct SelectionActions
{
    bool showPublisherProperty;
    bool deletePublisher;
};

constexpr SelectionActions selectionActions(int selectedRows)
{
    return {selectedRows == 1, selectedRows >= 1};
}
