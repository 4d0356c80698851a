#include <Tamble/Model/PanelState.h>
#include <Tamble/Model/ToolSession.h>

#include <gtest/gtest.h>

namespace tamble {
namespace {

const PanelSection& sectionWith(const ToolSession& session, std::string_view label) {
    for (const PanelSection& section : session.definition().panel.sections) {
        if (!section.choices.empty() && section.choices.front().label == label) return section;
    }
    throw std::runtime_error("no such section: " + std::string(label));
}

/// Of every section with choices, how many stand chosen.
std::vector<std::string> sectionsWithoutOneChosen(const ToolSession& session) {
    std::vector<std::string> headings;
    for (const PanelSection& section : session.definition().panel.sections) {
        if (section.control == PanelControl::text || section.control == PanelControl::number ||
            section.choices.empty())
            continue;
        int chosen = 0;
        for (const auto* list : {&section.choices, &section.moreChoices}) {
            for (const PanelChoice& choice : *list)
                chosen += PanelState::isChosen(choice, session.settings()) ? 1 : 0;
        }
        if (chosen != 1) headings.push_back(session.info().id + ": " + section.heading);
    }
    return headings;
}

TEST(PanelState, EveryToolStartsWithOneChoiceInEachSection) {
    std::vector<std::string> without;
    for (const ToolInfo& tool : ToolCatalog::all()) {
        if (ToolCatalog::definition(tool.id) == nullptr) continue;
        for (auto& heading : sectionsWithoutOneChosen(ToolSession(tool)))
            without.push_back(std::move(heading));
    }
    // The size is free: none of the usual ones has to be it.
    std::erase(without, "image.resize: How big should they be?");
    EXPECT_EQ(without, std::vector<std::string>());
}

TEST(PanelState, ATypedNameIsNeitherKeptNorLost) {
    ToolSession session(*ToolCatalog::withID("files.rename"));
    const PanelChoice& name = sectionWith(session, "New name").choices.front();
    const PanelSection& keep = sectionWith(session, "Keep the current names");
    EXPECT_TRUE(PanelState::isChosen(keep.choices[0], session.settings()));

    session.change(PanelState::typing(name, "Goa trip", session.definition().defaults));
    EXPECT_EQ(PanelState::typedText(name, session.settings()), "Goa trip");
    EXPECT_FALSE(PanelState::isChosen(keep.choices[0], session.settings()));
    EXPECT_TRUE(PanelState::isChosen(keep.choices[1], session.settings()));
}

TEST(PanelState, ATypedExtensionIsAChangedOne) {
    ToolSession session(*ToolCatalog::withID("files.rename"));
    const PanelSection& change = sectionWith(session, "Change the extension");
    const PanelChoice& extension = sectionWith(session, "New extension").choices.front();
    session.change(PanelState::typing(extension, "jpg", session.definition().defaults));
    EXPECT_TRUE(PanelState::isChosen(change.choices[0], session.settings()));
    session.change(PanelState::typing(extension, "", session.definition().defaults));
    EXPECT_TRUE(PanelState::isChosen(change.choices[1], session.settings())) << "no text is no change";
}

TEST(PanelState, AnEmptyNameOfACombinedPDFIsTheUsualOne) {
    ToolSession session(*ToolCatalog::withID("pdf.merge"));
    const PanelChoice& name = sectionWith(session, "Name").choices.front();
    session.change(PanelState::typing(name, "All of it", session.definition().defaults));
    EXPECT_EQ(session.settings().at("outputStem"), "All of it");
    session.change(PanelState::typing(name, "", session.definition().defaults));
    EXPECT_FALSE(session.settings().contains("outputStem"));
}

TEST(PanelState, NotesOfOneFormatShowOnlyForItsFiles) {
    ToolSession session(*ToolCatalog::withID("image.compress"));
    const auto shown = [&session](const char* type) {
        const InputFile file{.url = "/a", .contentType = ContentType::withIdentifier(type)};
        const auto& sections = session.definition().panel.sections;
        return std::ranges::count_if(sections, [&](const PanelSection& section) {
            return PanelState::isShown(section, session.settings(), {&file, 1});
        });
    };
    EXPECT_EQ(shown("public.png"), shown("public.jpeg") + 1);
}

}  // namespace
}  // namespace tamble
