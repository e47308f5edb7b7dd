// The random actions of the monkey: a pure function of the seed.
#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

/// What the monkey does while a dialog is open. The last four change the publishers behind the dialog.
enum class StepKind : uint8_t
{
    type,
    choose,
    page,
    click,
    enter,
    escape,
    frame,
    comes,
    goes,
    device,
    requests,
};

struct Step
{
    StepKind kind;
    unsigned number; ///< which widget, text, publisher or command
};

enum class ActionKind : uint8_t
{
    comes,     ///< a publisher is registered
    goes,      ///< a publisher is unregistered by another program
    strangers, ///< another program unregisters all publishers that the monkey added with the dialog
    device,    ///< a command for a machine, a server or the service
    fault,     ///< the next requests to a publisher fail
    time,      ///< simulated time passes
    select,
    sort,
    size,
    poll,
    requests, ///< waits until some requests have arrived
    reopen,   ///< closes the window, at any point of a poll, and opens another one
    properties,
    add,
    remove,
    settings,
    about,
    logs,
};

constexpr unsigned publisherCount = 40; ///< numbers 0 to 19 are local, 20 to 39 network publishers

struct Action
{
    ActionKind kind;
    unsigned publisher;
    unsigned number; ///< meaning depends on the kind
    std::vector<Step> steps;
};

/// Returns for example "properties n7 #12: click 3, goes n7, escape".
std::string textOf(const Action& action);
/// "l0" to "l19", then "n0" to "n19": regist id and name in the scenario.
std::string publisherID(unsigned publisher);

class Plan
{
public:
    explicit Plan(uint64_t seed) : m_random(seed) {}

    Action next();

private:
    unsigned below(unsigned limit);
    Step step();

    std::mt19937_64 m_random;
};
