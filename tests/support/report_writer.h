#pragma once

// Writes turn reports in the game's two layouts, for tests and benchmarks
// that need reports of a given shape or size.

#include <string>
#include <vector>

namespace wayscribe::test {

struct ReportShape {
    bool banner = true;             // the banner layout; otherwise the plain one
    std::string game = "07";        // the two characters that carry the game number
    std::vector<std::string> prose; // lines before the party section
    long startX = 45;
    long startY = 67;
    std::vector<std::vector<std::string>> map; // cell names, row by row; none: no map table
    std::string heading;                       // e.g. "TOWN OF BRACKWATER (23)"; empty: no settlement
    std::vector<std::string> afterHeading;     // the lines between heading and shops
    std::vector<std::string> shops;            // shop lines
};

// "nn name" in the shop header's columns, with the first row from column 29.
inline std::string shopHeader(const std::string &number, const std::string &name, const std::string &row = {})
{
    std::string head = number;
    head.resize(3, ' ');
    std::string padded = name;
    padded.resize(24, ' ');
    head += padded;
    if (row.empty())
        return head.substr(0, head.find_last_not_of(' ') + 1);
    return head + " " + row;
}

// "(nnn) name                price": name in columns 7..26, price from 27.
inline std::string tableRow(const std::string &number, const std::string &name, const std::string &price)
{
    std::string padded = name;
    padded.resize(20, ' ');
    return "(" + number + ") " + padded + price;
}

inline std::string reportText(const ReportShape &shape)
{
    std::string out;
    auto line = [&out](const std::string &text) {
        out += text;
        out += "\r\n";
    };
    const std::string plainHeading = "<center><table><tr><td align=center><b>";
    line("<HTML><BODY><PRE>");
    if (shape.banner)
        line("</PRE><H2 ALIGN=center>* * * QUEST - THE 2ND AGE * * *</H2><PRE>");
    for (const std::string &p : shape.prose)
        line(p);
    line(shape.banner ? "</PRE><H2 ALIGN=center>OUR PARTY</H2><PRE>"
                      : plainHeading + "WILDERNESS MAP</b></td></tr></table></center>");
    line("Party#1234  Turn 15  G" + shape.game);
    if (!shape.map.empty()) {
        line("<!-- MAP INFO " + std::to_string(shape.startX) + " " + std::to_string(shape.startY) + " -->");
        line("<TABLE BORDER=0 CELLSPACING=0 CELLPADDING=0>");
        line(shape.banner ? "<TR><TD></TD><TD>x</TD></TR>" : "<TR><TD></TD>");
        for (std::size_t r = 0; r < shape.map.size(); ++r) {
            line("<TR><TD ALIGN=left><B>" + std::to_string(shape.startY + static_cast<long>(r)) +
                 "</B></TD>");
            std::string row;
            for (const std::string &name : shape.map[r]) {
                const std::string picture = name == "Sky" ? "psky.gif" : "tile.gif";
                if (shape.banner) {
                    line("<TD><IMG SRC=\"" + picture + "\" ALT=\"" + name + "\" BORDER=0></TD>");
                } else {
                    if (!row.empty())
                        row += ", ";
                    row += "<IMG SRC=\"" + picture + "\" ALT=\"" + name + "\" BORDER=0 HSPACE=0>";
                }
            }
            if (!shape.banner)
                line(row);
        }
        line("</TABLE><PRE>");
    }
    if (!shape.heading.empty()) {
        line("</PRE><H2 ALIGN=center>THE " + shape.heading + "</H2><PRE>");
        for (const std::string &l : shape.afterHeading)
            line(l);
        for (const std::string &l : shape.shops)
            line(l);
        line(shape.banner ? "</PRE><H2 ALIGN=center>PARTY STATISTICS</H2><PRE>"
                          : plainHeading + "PARTY STATISTICS</b></td></tr></table></center>");
    }
    line("</PRE></BODY></HTML>");
    return out;
}

} // namespace wayscribe::test
