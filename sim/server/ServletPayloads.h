// The data of the servlets' replies: structures and status words of one publisher server.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "PublisherServer.h"

namespace udsim {

/// One item of a reply. Of data beyond 65,535 bytes the rest is left out.
std::string replyItem(uint8_t status, std::string_view data = {});
/// Big-endian.
std::string bigEndian(uint64_t value, size_t size);

/// Text and numeric information; nothing for a type that the server does not know, or not now.
std::optional<std::string> textInfo(const PublisherServer& server, uint32_t type);
std::optional<uint32_t> numberInfo(const PublisherServer& server, uint32_t type);
/// Only the machine itself knows this text: nobody does while it is not connected.
bool isOfMachine(uint32_t textType);
/// The data of a device status; nothing for a type that there is not.
std::optional<std::string> deviceStatus(const PublisherServer& server, uint32_t type);
/// One job of a list. `extended`: with its remaining time.
std::string jobPayload(const PublisherServer& server, const Job& job, bool extended);

} // namespace udsim
