#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tamble {

/// Texts of the engine that the window can show, each once.
struct EngineTexts {
    std::vector<std::string> plain;
    /// Those with "%n" for a number.
    std::vector<std::string> counted;

    /// Sorted in by itself; an empty text is none.
    void add(std::string_view text);
};

/// Everything that tools and their panels say.
void addToolTexts(EngineTexts& texts);
/// Why things failed, were skipped or left out.
void addSentences(EngineTexts& texts);
/// Those of them that stand nowhere but in the code that says them.
std::span<const std::string_view> sentencesListedByHand();

/// As source code that names each of them as a text of the context "Engine".
std::string sourceCode(const EngineTexts& texts);

}  // namespace tamble
