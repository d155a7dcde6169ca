#include "import/paragraph_accumulator.h"

namespace wayscribe {

void ParagraphAccumulator::clear()
{
    text_.clear();
    searches_.clear();
}

void ParagraphAccumulator::assign(std::string_view text)
{
    std::string copy(text);
    text_.swap(copy);
    searches_.clear();
}

long ParagraphAccumulator::position(std::string_view phrase)
{
    Search *search = nullptr;
    for (Search &s : searches_)
        if (s.phrase == phrase)
            search = &s;
    if (!search)
        search = &searches_.emplace_back(Search{std::string(phrase)});
    if (search->found == std::string::npos && text_.size() > search->scanned) {
        // An occurrence may straddle the end of the text already searched.
        const std::size_t overlap = phrase.empty() ? 0 : phrase.size() - 1;
        const std::size_t from = search->scanned > overlap ? search->scanned - overlap : 0;
        search->found = text_.find(phrase, from);
        search->scanned = text_.size();
    }
    return search->found == std::string::npos ? 0 : static_cast<long>(search->found) + 1;
}

} // namespace wayscribe
