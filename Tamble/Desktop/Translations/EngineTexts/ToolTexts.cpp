#include <Tamble/Desktop/Translations/EngineTexts/EngineTexts.h>
#include <Tamble/Model/ToolKeywords.h>

#include <TambleCore/Catalog/ToolCatalog.h>
#include <TambleCore/Rename/RenamePanel.h>
#include <TambleCore/Support/Json/Described.h>

namespace tamble {
namespace {

/// Calls `use` with every case.
template <DescribedEnum Enum, typename Use>
void forEachCase(const Use& use) {
    boost::mp11::mp_for_each<boost::describe::describe_enumerators<Enum>>(
        [&](auto enumerator) { use(enumerator.value); });
}

void addChoices(EngineTexts& texts, const std::vector<PanelChoice>& choices) {
    for (const PanelChoice& choice : choices) {
        texts.add(choice.label);
        texts.add(choice.description);
    }
}

void addPanel(EngineTexts& texts, const OptionsPanel& panel) {
    for (const PanelSection& section : panel.sections) {
        texts.add(section.heading);
        addChoices(texts, section.choices);
        texts.add(section.moreLabel);
        addChoices(texts, section.moreChoices);
        texts.add(section.placeholder);
        texts.add(section.note);
    }
    for (const auto& words : {panel.words.start, panel.words.working, panel.words.done}) texts.add(words);
}

}  // namespace

void addToolTexts(EngineTexts& texts) {
    forEachCase<ToolCategory>([&](ToolCategory category) {
        texts.add(title(category));
        texts.add(categoryKeywords(category));
    });
    for (const ToolInfo& tool : ToolCatalog::all()) {
        texts.add(tool.title);
        texts.add(tool.subtitle);
        texts.add(toolKeywords(tool.kind));
        texts.add(ToolCatalog::unavailableReason(tool.id));
        if (const auto* definition = ToolCatalog::definition(tool.id)) {
            addPanel(texts, definition->panel);
            texts.add(definition->unreadable.sentence());
        }
    }
    forEachCase<RenameWay>([&](RenameWay way) {
        texts.add(textOf(way).label);
        texts.add(textOf(way).description);
    });
}

}  // namespace tamble
