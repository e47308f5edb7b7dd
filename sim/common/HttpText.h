// The line ends of HTTP messages.
#pragma once

namespace udsim {

constexpr char LINE_END[] = "\r\n";
constexpr char HEAD_END[] = "\r\n\r\n"; ///< ends the last header and the head

} // namespace udsim
