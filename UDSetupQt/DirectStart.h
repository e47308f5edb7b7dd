// Starts with the properties of a named publisher, without the list.
#pragma once

#include <optional>

/// Shows the properties of the first publisher that has exactly this name and can be read, and runs the event
/// loop until they are closed. Returns the exit code of the loop; nothing, without a message, if there is no
/// such publisher. User-interface thread. The application must exist and its event loop must not run yet.
std::optional<int> startWithPublisher(const char* strPublisherName);
