#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wayscribe {

// The running text in which the importer looks for phrases that span
// several lines of a report. It can grow to the size of the whole report and
// is asked for the same few phrases after every line, so it remembers how
// far it has searched for each phrase: appending costs only the new text.
class ParagraphAccumulator {
public:
    void append(std::string_view text) { text_.append(text); }
    void clear();
    // Replaces the text (a cut of itself is allowed).
    void assign(std::string_view text);

    // 1-based position of the first occurrence of `phrase`; 0 when absent.
    long position(std::string_view phrase);
    bool contains(std::string_view phrase) { return position(phrase) != 0; }

    const std::string &text() const { return text_; }

private:
    struct Search {
        std::string phrase;
        std::size_t found = std::string::npos;
        std::size_t scanned = 0; // text before this offset holds no complete occurrence
    };

    std::string text_;
    std::vector<Search> searches_;
};

} // namespace wayscribe
