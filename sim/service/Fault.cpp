#include "Fault.h"

#include <array>
#include <iterator>
#include <utility>
#include <vector>

#include "Nearest.h"
#include "Protocol.h"
#include "Text.h"

namespace udsim {

namespace {

constexpr std::array<std::pair<const char*, Fault::Kind>, 9> SERVICE_FAULTS{{
    {"refuse", Fault::Kind::refuse},
    {"stall", Fault::Kind::stall},
    {"wrong-id", Fault::Kind::wrongId},
    {"short-header", Fault::Kind::shortHeader},
    {"short-payload", Fault::Kind::shortPayload},
    {"huge-length", Fault::Kind::hugeLength},
    {"result", Fault::Kind::result},
    {"close", Fault::Kind::close},
    {"delay", Fault::Kind::delay},
}};

constexpr uint64_t HUGE_LENGTH = uint64_t{1} << 62;

} // namespace

std::optional<Fault> Fault::parse(const std::string& text, std::string& error)
{
    const auto [word, argument] = splitFirstWord(text);
    Fault fault;
    bool known = false;
    for (const auto& [name, kind] : SERVICE_FAULTS) {
        if (word == name) {
            fault.kind = kind;
            known = true;
        }
    }
    if (!known) {
        std::vector<std::string> names;
        names.reserve(std::size(SERVICE_FAULTS));
        for (const auto& [name, kind] : SERVICE_FAULTS) {
            names.emplace_back(name);
        }
        error = "unknown fault \"" + word + "\"" + suggestion(word, names);
        return std::nullopt;
    }
    const bool takesNumber = fault.kind == Kind::result || fault.kind == Kind::delay;
    if (!takesNumber && !argument.empty()) {
        error = "the fault \"" + word + "\" takes no argument";
        return std::nullopt;
    }
    if (takesNumber) {
        const auto number = parseNumber(argument, LONGEST_FAULT_DELAY); // also the limit of a result code
        if (!number) {
            error = "the fault \"" + word + "\" needs a number up to " + std::to_string(LONGEST_FAULT_DELAY);
            return std::nullopt;
        }
        fault.number = *number;
    }
    return fault;
}

Delivery deliver(const Reply& reply, const Fault* fault)
{
    const std::string whole = encodeReply(reply);
    Delivery delivery{.bytes = whole};
    if (fault == nullptr) {
        return delivery;
    }
    ByteWriter header;
    switch (fault->kind) {
    case Fault::Kind::refuse: // the listening socket is closed; an open connection is closed as by `close`
    case Fault::Kind::close:
        delivery.bytes.clear();
        delivery.close = true;
        break;
    case Fault::Kind::stall:
        delivery.bytes.clear();
        delivery.stall = true;
        break;
    case Fault::Kind::wrongId:
        delivery.bytes = encodeReply({reply.control + 1, reply.result, reply.payload});
        break;
    case Fault::Kind::shortHeader:
        delivery.bytes = whole.substr(0, HEADER_SIZE / 2);
        delivery.close = true;
        break;
    case Fault::Kind::shortPayload:
        delivery.bytes = whole.substr(0, HEADER_SIZE + reply.payload.size() / 2);
        delivery.close = true;
        break;
    case Fault::Kind::hugeLength:
        header.u64(reply.control).u64(reply.result).u64(HUGE_LENGTH);
        delivery.bytes = header.bytes() + reply.payload;
        break;
    case Fault::Kind::result:
        delivery.bytes = encodeReply({reply.control, fault->number, reply.payload});
        break;
    case Fault::Kind::delay:
        delivery.delay = std::chrono::milliseconds(fault->number);
        break;
    }
    return delivery;
}

} // namespace udsim
