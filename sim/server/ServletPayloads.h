// The data in the servlets' replies: structures and status words of one publisher server.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "PublisherServer.h"

namespace udsim {

/// Returns one item of a reply. Data is cut after 65,535 bytes.
std::string replyItem(uint8_t status, std::string_view data = {});
/// Encodes the value in `size` bytes, most significant byte first.
std::string bigEndian(uint64_t value, size_t size);

/// Returns text or numeric information; nothing for a type that is unknown or not available now.
std::optional<std::string> textInfo(const PublisherServer& server, uint32_t type);
std::optional<uint32_t> numberInfo(const PublisherServer& server, uint32_t type);
/// Returns whether this text comes from the machine and is not available while the machine is disconnected.
bool isOfMachine(uint32_t textType);
/// Returns the data of a device status; nothing for an unknown type.
std::optional<std::string> deviceStatus(const PublisherServer& server, uint32_t type);
/// Returns one job of a list. `extended`: with its remaining time.
std::string jobPayload(const PublisherServer& server, const Job& job, bool extended);

} // namespace udsim
