#pragma once

#include "travel/route_search.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

// The most journeys a written route holds.
inline constexpr int kMaxRouteHops = 149;

// What the boxes offer: every settlement in use, in number order.
std::vector<std::string> routeBoxItems(const World &world);

// The travel agency: finds the cheapest and then the shortest chain of
// journeys between the settlements named in the two boxes (texts such as
// "Oakvale (12)"; only the number in parentheses counts) and returns the
// whole text of the result box, lines ended by CR LF. Returns nothing, and
// the result box keeps its text, when a box is empty or malformed (the
// person is told about the malformed one). FileBusy is set while it runs.
// `started` receives the text shown while the search runs (the result box
// shows it before any message about a journey's price can appear).
using RoutesStarted = std::function<void(const std::string &pleaseWait)>;
std::optional<std::string> findRoutes(const World &world, ProgramState &state, Platform &platform,
                                      const std::string &fromText, const std::string &toText,
                                      const RoutesStarted &started = {});

// The same with another implementation of the search run, for comparing it
// with a reference.
std::optional<std::string> findRoutesWith(RouteSearchFunction search, const World &world, ProgramState &state,
                                          Platform &platform, const std::string &fromText,
                                          const std::string &toText, const RoutesStarted &started = {});

} // namespace wayscribe
