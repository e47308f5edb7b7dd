#include "HttpFault.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>
#include <vector>

#include "Fault.h"
#include "HttpText.h"
#include "Nearest.h"
#include "ServletNumbers.h"
#include "ServletPayloads.h"
#include "Text.h"

namespace udsim {

namespace {

using Kind = HttpFault::Kind;

struct Word
{
    const char* name;
    Kind kind;
    uint64_t highest; ///< maximum of its number; 0: it takes no number
};

constexpr std::array<Word, 15> SERVER_FAULTS{{
    {"stall", Kind::stall, 0},
    {"close", Kind::close, 0},
    {"delay", Kind::delay, LONGEST_FAULT_DELAY},
    {"status", Kind::status, 255},
    {"http", Kind::http, 999},
    {"empty", Kind::empty, 0},
    {"size", Kind::size, 0xFFFF},
    {"length", Kind::length, 0xFFFF},
    {"extra-item", Kind::extraItem, 0},
    {"cut", Kind::cut, UINT32_MAX},
    {"chunked", Kind::chunked, 0},
    {"chunk-extension", Kind::chunkExtension, 0},
    {"interim", Kind::interim, 1000},
    {"content-length", Kind::contentLength, UINT64_MAX},
    {"drip", Kind::drip, LONGEST_FAULT_DELAY},
}};

std::string statusLine(unsigned status)
{
    return "HTTP/1.1 " + std::to_string(status) + " " + reasonOf(status) + LINE_END;
}

std::string wholeReply(const HttpReply& reply, uint64_t length)
{
    return statusLine(reply.status) + "Content-Length: " + std::to_string(length) + LINE_END + LINE_END +
           reply.body;
}

std::string hexadecimal(size_t number)
{
    constexpr char DIGITS[] = "0123456789abcdef";
    std::string text;
    do {
        text.insert(0, 1, DIGITS[number % 16]);
        number /= 16;
    } while (number > 0);
    return text;
}

/// Returns the body with its first item changed; a body without an item is unchanged.
std::string changedItem(const std::string& body, const HttpFault& fault)
{
    if (body.size() < ITEM_HEAD) {
        return body;
    }
    const size_t length =
        static_cast<size_t>(static_cast<uint8_t>(body[1])) << 8 | static_cast<uint8_t>(body[2]);
    if (fault.kind == Kind::length) {
        return body.substr(0, 1) + bigEndian(fault.number, 2) + body.substr(ITEM_HEAD);
    }
    std::string data = body.substr(ITEM_HEAD, length);
    data.resize(fault.number);
    return replyItem(static_cast<uint8_t>(body[0]), data) +
           body.substr(std::min(body.size(), ITEM_HEAD + length));
}

} // namespace

std::optional<HttpFault> HttpFault::parse(const std::string& text, std::string& error)
{
    const auto [word, argument] = splitFirstWord(text);
    const auto* const known = std::find_if(SERVER_FAULTS.begin(), SERVER_FAULTS.end(),
                                           [name = word](const Word& one) { return name == one.name; });
    if (known == SERVER_FAULTS.end()) {
        std::vector<std::string> names;
        names.reserve(std::size(SERVER_FAULTS));
        for (const Word& one : SERVER_FAULTS) {
            names.emplace_back(one.name);
        }
        error = "unknown server fault \"" + word + "\"" + suggestion(word, names);
        return std::nullopt;
    }
    HttpFault fault;
    fault.kind = known->kind;
    if (known->highest == 0 && !argument.empty()) {
        error = "the fault \"" + word + "\" takes no argument";
        return std::nullopt;
    }
    if (known->highest > 0) {
        const auto number = parseNumber(argument, known->highest);
        // The HTTP library supports statuses of three digits, and a status below 200 does not end a reply.
        if (!number || (fault.kind == Kind::http && *number < 200)) {
            error = "the fault \"" + word + "\" needs a number" +
                    (fault.kind == Kind::http ? " from 200" : "") + " up to " +
                    std::to_string(known->highest);
            return std::nullopt;
        }
        fault.number = *number;
    }
    return fault;
}

bool HttpFault::fits(const HttpRequest& request, const std::string& publisherName) const
{
    return (method.empty() || method == request.method) && request.target.starts_with(path) &&
           (publisher.empty() || publisher == publisherName);
}

std::optional<HttpReply> HttpFault::refusal() const
{
    if (kind == Kind::status) {
        return HttpReply{200, replyItem(static_cast<uint8_t>(number))};
    }
    return kind == Kind::http ? std::optional(HttpReply{static_cast<unsigned>(number), {}}) : std::nullopt;
}

HttpDelivery deliver(const HttpReply& reply, const HttpFault* fault)
{
    HttpDelivery delivery;
    delivery.reply = reply;
    if (fault == nullptr) {
        return delivery;
    }
    switch (fault->kind) {
    case Kind::stall:
    case Kind::close:
        delivery.reply.reset();
        delivery.stall = fault->kind == Kind::stall;
        break;
    case Kind::delay:
        delivery.delay = std::chrono::milliseconds(fault->number);
        break;
    case Kind::status: // `reply` is already the result of refusal()
    case Kind::http:
        break;
    case Kind::empty:
        delivery.reply->body.clear();
        break;
    case Kind::size:
    case Kind::length:
        delivery.reply->body = changedItem(reply.body, *fault);
        break;
    case Kind::extraItem:
        delivery.reply->body += replyItem(0);
        break;
    case Kind::cut:
        delivery.raw = wholeReply(reply, reply.body.size()).substr(0, fault->number);
        delivery.reply.reset();
        break;
    case Kind::chunked:
        delivery.chunked = true;
        break;
    case Kind::chunkExtension:
        delivery.raw = statusLine(reply.status) + "Transfer-Encoding: chunked" + LINE_END + LINE_END +
                       hexadecimal(reply.body.size()) + ";x=y" + LINE_END + reply.body + LINE_END + "0" +
                       LINE_END + LINE_END;
        delivery.reply.reset();
        break;
    case Kind::interim:
        for (uint64_t i = 0; i < fault->number; ++i) {
            delivery.raw += std::string("HTTP/1.1 100 Continue") + LINE_END + LINE_END;
        }
        break;
    case Kind::contentLength:
        delivery.raw = wholeReply(reply, fault->number);
        delivery.reply.reset();
        delivery.stall = true;
        break;
    case Kind::drip:
        delivery.raw = wholeReply(reply, reply.body.size());
        delivery.dripTime = std::chrono::milliseconds(fault->number);
        delivery.reply.reset();
        break;
    }
    return delivery;
}

} // namespace udsim
