// Results of the socket and the HTTP client: 0 or a count for success, otherwise one of these.
#pragma once

constexpr int INTERNET_ERR_ARGUMENT = -1; ///< also: the socket's status flags cannot be read or set
constexpr int INTERNET_ERR_MEMORY = -2;
constexpr int INTERNET_ERR_NOT_OPEN = -3;
constexpr int INTERNET_ERR_ALREADY_OPEN = -4;
constexpr int INTERNET_ERR_LINE_TOO_LONG = -5;
constexpr int INTERNET_ERR_NO_COMM = -6;      ///< nothing happened within the time allowed
constexpr int INTERNET_ERR_RECV_TIMEOUT = -7; ///< handled by the HTTP client; this transport never returns it
constexpr int INTERNET_ERR_SEND_TIMEOUT = -8; ///< a send would block
constexpr int INTERNET_ERR_RECV = -9;
constexpr int INTERNET_ERR_SEND = -10;
constexpr int INTERNET_ERR_CLOSED = -11; ///< the peer closed the connection, or a shutdown failed
constexpr int INTERNET_ERR_SOCKET = -13;
constexpr int INTERNET_ERR_CONNECT = -14;
constexpr int INTERNET_ERR_OPTION = -15;
constexpr int INTERNET_ERR_MALFORMED = -25; ///< not the HTTP that this client supports
constexpr int INTERNET_ERR_SELECT = -26;
