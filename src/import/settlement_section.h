#pragma once

#include <string_view>

namespace wayscribe {

struct ReportImport;

// "</PRE><H2 ALIGN=center>THE ..." naming a city, town or village.
bool isSettlementHeading(std::string_view text);

// The settlement the party stands in: the dungeons its prose named, the
// settlement itself (asking before it replaces another), the hide note and
// the shop lines that follow the heading.
void readSettlementSection(ReportImport &im, std::string_view heading);

} // namespace wayscribe
