// A network without sockets: every connection of the network client leads to a function that answers its
// requests.
#pragma once

#include <functional>
#include <string>

/// While an object exists, all connections lead to it. A program that links the object library
/// ScriptedNetwork cannot open others. Only one object at a time, and one thread that uses the client.
class ScriptedNetwork
{
public:
    /// Returns what the server sends after a whole request. After these bytes the server sends no more until
    /// the next request, and a read finds the connection closed.
    using Answer = std::function<std::string(const std::string& request)>;

    explicit ScriptedNetwork(Answer answer);
    ScriptedNetwork(const ScriptedNetwork&) = delete;
    ScriptedNetwork& operator=(const ScriptedNetwork&) = delete;
    ~ScriptedNetwork();
};
