#include "Plan.h"

#include <cstddef>

namespace {

template <class Kind>
struct Weight
{
    Kind kind;
    const char* name;
    unsigned weight;
};

constexpr std::array<Weight<ActionKind>, 18> actions{{
    {ActionKind::comes, "comes", 20},
    {ActionKind::goes, "goes", 14},
    {ActionKind::strangers, "strangers go", 1},
    {ActionKind::device, "device", 12},
    {ActionKind::fault, "fault", 4},
    {ActionKind::time, "time", 3},
    {ActionKind::select, "select", 5},
    {ActionKind::sort, "sort", 2},
    {ActionKind::size, "size", 2},
    {ActionKind::poll, "poll", 4},
    {ActionKind::requests, "requests", 5},
    {ActionKind::reopen, "reopen", 2},
    {ActionKind::properties, "properties", 14},
    {ActionKind::add, "add", 5},
    {ActionKind::remove, "remove", 5},
    {ActionKind::settings, "settings", 4},
    {ActionKind::about, "about", 2},
    {ActionKind::logs, "logs", 1},
}};

constexpr std::array<Weight<StepKind>, 11> steps{{
    {StepKind::type, "type", 3},
    {StepKind::choose, "choose", 3},
    {StepKind::page, "page", 2},
    {StepKind::click, "click", 8},
    {StepKind::enter, "enter", 2},
    {StepKind::escape, "escape", 1},
    {StepKind::frame, "frame", 1},
    {StepKind::comes, "comes", 1},
    {StepKind::goes, "goes", 2},
    {StepKind::device, "device", 2},
    {StepKind::requests, "requests", 2},
}};

constexpr unsigned mostSteps = 7;
constexpr unsigned numbers = 1000;

/// The entry that covers the place `place` when the entries are laid out by their weights.
template <class Kind, size_t size>
constexpr Kind at(const std::array<Weight<Kind>, size>& table, unsigned place)
{
    for (const auto& entry : table) {
        if (place < entry.weight) {
            return entry.kind;
        }
        place -= entry.weight;
    }
    return table.back().kind;
}

template <class Kind, size_t size>
constexpr unsigned total(const std::array<Weight<Kind>, size>& table)
{
    unsigned sum = 0;
    for (const auto& entry : table) {
        sum += entry.weight;
    }
    return sum;
}

template <class Kind, size_t size>
std::string nameOf(const std::array<Weight<Kind>, size>& table, Kind kind)
{
    for (const auto& entry : table) {
        if (entry.kind == kind) {
            return entry.name;
        }
    }
    return {};
}

bool opensDialogs(ActionKind kind)
{
    return kind >= ActionKind::properties;
}

bool concernsAPublisher(StepKind kind)
{
    return kind == StepKind::comes || kind == StepKind::goes || kind == StepKind::device;
}

} // namespace

std::string publisherID(unsigned publisher)
{
    constexpr unsigned locals = publisherCount / 2;
    return publisher < locals ? "l" + std::to_string(publisher) : "n" + std::to_string(publisher - locals);
}

std::string textOf(const Action& action)
{
    std::string text = nameOf(actions, action.kind) + " " + publisherID(action.publisher) + " #" +
                       std::to_string(action.number);
    const char* separator = ": ";
    for (const Step& step : action.steps) {
        text += separator + nameOf(steps, step.kind) + " ";
        text += concernsAPublisher(step.kind) ? publisherID(step.number % publisherCount) + " #" : "";
        text += std::to_string(step.number);
        separator = ", ";
    }
    return text;
}

/// Not std::uniform_int_distribution, whose results differ between libraries.
unsigned Plan::below(unsigned limit)
{
    return static_cast<unsigned>(m_random() % limit);
}

Step Plan::step()
{
    const StepKind kind = at(steps, below(total(steps)));
    return {kind, below(numbers)};
}

Action Plan::next()
{
    Action action;
    action.kind = at(actions, below(total(actions)));
    action.publisher = below(publisherCount);
    action.number = below(numbers);
    if (opensDialogs(action.kind)) {
        const unsigned count = below(mostSteps);
        for (unsigned i = 0; i < count; ++i) {
            Step one = step();
            // The publisher of the open dialog is the most interesting one to change.
            if (concernsAPublisher(one.kind) && one.number % 2 == 0) {
                one.number = one.number / publisherCount * publisherCount + action.publisher;
            }
            action.steps.push_back(one);
        }
    }
    return action;
}
