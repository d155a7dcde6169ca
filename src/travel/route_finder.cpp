#include "travel/route_finder.h"

#include "model/file_job.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"

#include <algorithm>
#include <memory>

namespace wayscribe {

namespace {

const char *const kBadNames = "Bad settlement names in to/from field? Cancelling search.";
const char *const kBadNumbers = "Bad settlement numbers in to/from field? Cancelling search.";

bool hasParentheses(const std::string &box)
{
    return contains(box, "(") && contains(box, ")");
}

// The number part of a box: the text after the first "(", cut to as many
// characters as the position of the first ")" less one.
bool numberPartEmpty(const std::string &box)
{
    return leftChars(midChars(box, positionOf(box, "(") + 1), positionOf(box, ")") - 1).empty();
}

long long boxNumber(const std::string &box)
{
    return indexValue(midChars(box, positionOf(box, "(") + 1));
}

// The purchase orders of a found route, from the start to the goal.
std::string routeText(const JourneyTable &table, RouteMode mode, RouteEnds ends,
                      const RouteSearchResult &result)
{
    // Every settlement is reached once, from one reached before it, so the
    // walk back from the goal ends at the start.
    std::array<int, kMaxSettlements> back{};
    int count = 0;
    for (long long at = ends.goal; at != ends.start && isSettlementIndex(at) && count < kMaxSettlements;
         at = result.parent[at])
        back[count++] = static_cast<int>(at);

    std::string text = mode == RouteMode::Cheapest ? "Cheapest Route:\r\n" : "Shortest Route:\r\n";
    // A longer route keeps its first hops: those are the orders to give now.
    const int hops = std::min(count, kMaxRouteHops);
    for (int i = count - 1; i >= count - hops; --i) {
        const int hop = back[i];
        const int from = result.parent[hop];
        for (int k = 1; k <= table.count[from]; ++k)
            if (table.destination[from][k] == hop) {
                text += table.orderText[from][k] + "\r\n";
                break;
            }
    }
    text +=
        "Total cost to reach destination: " + formatGeneral(static_cast<double>(result.money[ends.goal])) +
        " gp per head\r\n\r\n";
    return text;
}

std::string failureText(const World &world, const std::string &from, const std::string &to,
                        const ClosestSettlement &closest)
{
    const std::string name = settlementBoxText(world, closest.number);
    return "No routes found from " + from + " to " + to +
           ".\r\n\r\nThe closest settlement to your destination was calculated as:\r\n" + name +
           " with a rough distance of " + formatPlain(closest.distance) + " sectors from " + to +
           ".\r\n\r\nYou may be able to journey to " + name + " and travel on foot to " + to +
           "... or journey to " + name +
           " travel on foot to a nearby settlement, and try to continue the journeys to " + to +
           " from there.";
}

} // namespace

std::vector<std::string> routeBoxItems(const World &world)
{
    std::vector<std::string> items;
    for (int n = 1; n <= kMaxSettlements; ++n)
        if (world.settlement(n).inUse == 1)
            items.push_back(settlementBoxText(world, n));
    return items;
}

std::optional<std::string> findRoutes(const World &world, ProgramState &state, Platform &platform,
                                      const std::string &fromText, const std::string &toText,
                                      const RoutesStarted &started)
{
    return findRoutesWith(searchRoute, world, state, platform, fromText, toText, started);
}

std::optional<std::string> findRoutesWith(RouteSearchFunction search, const World &world, ProgramState &state,
                                          Platform &platform, const std::string &fromText,
                                          const std::string &toText, const RoutesStarted &started)
{
    if (fromText.empty() || toText.empty())
        return std::nullopt;
    if (!hasParentheses(fromText) || !hasParentheses(toText)) {
        platform.message(kBadNames, kProgramTitle, MessageButtons::Ok, MessageIcon::Exclamation);
        return std::nullopt;
    }
    if (numberPartEmpty(fromText) || numberPartEmpty(toText)) {
        platform.message(kBadNumbers, kProgramTitle, MessageButtons::Ok, MessageIcon::Exclamation);
        return std::nullopt;
    }
    const RouteEnds ends{boxNumber(fromText), boxNumber(toText)};

    std::string text = "Please wait, calculating routes...\r\n";
    if (started)
        started(text);
    FileJob job(state.document, platform);

    ClosestSettlement closest{ends.start, settlementPositions(world).distance(ends.start, ends.goal)};
    auto table = std::make_unique<JourneyTable>();
    auto result = std::make_unique<RouteSearchResult>();
    // The shortest route is only looked for once a cheapest one exists; the
    // journey table is read afresh for each run, messages and all.
    for (const RouteMode mode : {RouteMode::Cheapest, RouteMode::Shortest}) {
        buildJourneyTable(world, platform, *table);
        search(*table, mode, ends, closest, *result);
        if (!result->found)
            break;
        text += routeText(*table, mode, ends, *result);
    }
    text += result->found ? std::string("Finished.\r\n") : failureText(world, fromText, toText, closest);

    return text;
}

} // namespace wayscribe
