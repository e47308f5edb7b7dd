// The start with a publisher's name: its properties at once, without the list.
#pragma once

#include <optional>

/// Shows the properties of the first publisher that bears exactly this name and can be read, and runs the
/// event loop until they are closed. The loop's exit code; nothing, in silence, when there is no such
/// publisher. User-interface thread; the application exists and its event loop does not run yet.
std::optional<int> startWithPublisher(const char* strPublisherName);
