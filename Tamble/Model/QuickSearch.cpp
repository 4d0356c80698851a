#include <Tamble/Model/QuickSearch.h>
#include <Tamble/Model/ToolKeywords.h>
#include <Tamble/Model/WordMatch.h>

#include <TambleCore/Support/SearchWords.h>
#include <TambleCore/Support/Wording.h>

#include <algorithm>
#include <array>

namespace tamble {
namespace {

constexpr std::size_t mostWords = 8;

/// A row for each field, a column for each match.
constexpr std::array<std::array<int, 7>, 4> pointsTable{{
    {100, 90, 80, 28, 20, 12, 0},
    {70, 65, 50, 24, 18, 10, 0},
    {55, 52, 35, 20, 14, 8, 0},
    {40, 38, 30, 20, 12, 6, 0},
}};
constexpr int sameTitle = 100, beginningOfTitle = 40, sameKeyword = 60;

std::u32string joined(const std::vector<std::u32string>& words) {
    std::u32string text;
    for (const auto& word : words) text += (text.empty() ? U"" : U" ") + word;
    return text;
}

/// All of them if none says anything.
std::vector<std::u32string> withoutFillWords(const std::vector<std::u32string>& words) {
    std::vector<std::u32string> kept = words;
    std::erase_if(kept, isFillWord);
    return kept.empty() ? words : kept;
}

}  // namespace

QuickSearch::QuickSearch(const Translation& translation) {
    const auto tools = ToolCatalog::all();
    for (std::size_t i = 0; i < tools.size(); ++i) {
        const ToolInfo& tool = tools[i];
        canRun_.push_back(canRunHere(tool));
        const auto addBoth = [&](std::string_view text, Field field) {
            add(localized(text), {i, field});
            if (!translation) return;
            if (const std::string translated = translation(text); translated != text)
                add(translated, {i, field});
        };
        addBoth(tool.title, Field::title);
        addBoth(tool.subtitle, Field::subtitle);
        addBoth(title(tool.category), Field::category);
        addBoth(categoryKeywords(tool.category), Field::category);
        addBoth(toolKeywords(tool.kind), Field::keyword);
    }
}

bool QuickSearch::canRunHere(const ToolInfo& tool) {
    return ToolCatalog::definition(tool.id) != nullptr;
}

std::vector<const ToolInfo*> QuickSearch::find(std::string_view query, std::size_t most) const {
    Words typed = withoutFillWords(searchWords(query));
    if (typed.empty()) return {};
    if (typed.size() > mostWords) typed.resize(mostWords);
    Scores points = scores(typed, false);
    if (std::ranges::all_of(points, [](int each) { return each == 0; })) points = scores(typed, true);
    addPhrasePoints(typed, points);

    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (points[i] > 0) order.push_back(i);
    }
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
        return canRun_[a] != canRun_[b] ? canRun_[a] : points[a] > points[b];
    });
    if (order.size() > most) order.resize(most);
    std::vector<const ToolInfo*> found;
    for (const std::size_t i : order) found.push_back(&ToolCatalog::all()[i]);
    return found;
}

/// Phrases are parted by commas.
void QuickSearch::add(std::string_view text, Place place) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(','), text.size());
        const Words words = searchWords(text.substr(0, end));
        for (const auto& word : words) words_[word].push_back(place);
        const Words telling = withoutFillWords(words);
        const bool isKeyword = place.field == Field::keyword && telling.size() > 1;
        if (place.field == Field::title || isKeyword) phrases_.push_back({joined(telling), place});
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

int QuickSearch::points(Field field, WordMatch match) {
    return pointsTable.at(static_cast<std::size_t>(field)).at(static_cast<std::size_t>(match));
}

QuickSearch::Scores QuickSearch::scores(std::u32string_view typed, bool forgiving) const {
    Scores best(canRun_.size());
    bool isKnown = false;
    const auto addMatches = [&](auto matchOf) {
        for (const auto& [word, places] : words_) {
            const WordMatch match = matchOf(typed, word);
            if (match == WordMatch::none) continue;
            isKnown = isKnown || match < WordMatch::inside;
            for (const auto& [tool, field] : places) best[tool] = std::max(best[tool], points(field, match));
        }
    };
    addMatches(literalMatch);
    if (forgiving || !isKnown) addMatches(forgivingMatch);
    return best;
}

/// Without `forgiving`, mistakes are looked for only in words that are nobody's beginning.
QuickSearch::Scores QuickSearch::scores(const Words& typed, bool forgiving) const {
    Scores sum(canRun_.size());
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const Scores ofWord = scores(typed[i], forgiving);
        for (std::size_t tool = 0; tool < sum.size(); ++tool) {
            const bool fits = ofWord[tool] > 0 && (i == 0 || sum[tool] > 0);
            sum[tool] = fits ? sum[tool] + ofWord[tool] : 0;
        }
    }
    return sum;
}

void QuickSearch::addPhrasePoints(const Words& typed, Scores& scores) const {
    const std::u32string text = joined(typed);
    Scores bonus(scores.size());
    for (const auto& [letters, place] : phrases_) {
        const bool isTitle = place.field == Field::title;
        const int points = letters == text                        ? (isTitle ? sameTitle : sameKeyword)
                           : isTitle && letters.starts_with(text) ? beginningOfTitle
                                                                  : 0;
        bonus[place.tool] = std::max(bonus[place.tool], points);
    }
    for (std::size_t tool = 0; tool < scores.size(); ++tool) {
        if (scores[tool] > 0) scores[tool] += bonus[tool];
    }
}

}  // namespace tamble
