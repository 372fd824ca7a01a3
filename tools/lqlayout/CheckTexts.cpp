#include "engine/text/FontManager.h"
#include "engine/text/LangManager.h"
#include "engine/window/BaseCtrl.h"
#include "platform/Unicode.h"

#include "tools/lqlayout/Checks.h"

namespace korvane::tools {
namespace {

/// A text and the place that it must fit into.
struct PlacedText {
    const LayoutCtrl* ctrl = nullptr;
    std::wstring prefix;  ///< of its keys
    int width = 0;
};

/// Labels that run their text through are not among them.
std::vector<PlacedText> ListTexts(const Layout& layout) {
    std::vector<PlacedText> texts;
    for (const LayoutCtrl& ctrl : layout.Ctrls()) {
        const bool isRunning =
            layout.Number(ctrl, L"scroll", 0) != 0 && layout.Number(ctrl, L"scrolltype", 1) != eScroll_None;
        if (ctrl.kind == kKindStatic && !isRunning)
            texts.push_back({&ctrl, std::wstring(), ctrl.place.right - ctrl.place.left});
        for (const LayoutElement& element : layout.ElementsOf(ctrl)) {
            if (element.isText)
                texts.push_back({&ctrl, element.prefix, element.width});
        }
    }
    return texts;
}

int WidthOf(const std::wstring& text, const Layout& layout, const PlacedText& placed) {
    constexpr int kNewFontSize = 20;
    const std::wstring face = layout.TextOf(*placed.ctrl, placed.prefix + L"font");
    CLQFontManager* const fonts = CLQFontManager::GetInstance();
    CLQFont* const font = face.empty() ? fonts->GetDefaultFont() : fonts->GetFont(face.c_str());
    font->SetFontSize(layout.Number(*placed.ctrl, placed.prefix + L"fontwidth", kNewFontSize),
                      layout.Number(*placed.ctrl, placed.prefix + L"fontheight", kNewFontSize));
    return font->GetStringWidth(text.c_str(), false);
}

void CheckWidth(const std::wstring& text, const std::wstring& key, const Layout& layout,
                const PlacedText& placed, const std::string& language, Findings& findings) {
    const int width = WidthOf(text, layout, placed);
    if (width > placed.width)
        findings.AddWarning(layout.LineOf(*placed.ctrl, placed.prefix + key),
                            "\"" + ToUtf8(text) + "\"" + language + " is " + std::to_string(width) +
                                " pixels wide, the " + layout.Describe(*placed.ctrl) + " has " +
                                std::to_string(placed.width));
}

}  // namespace

void CheckTexts(const Layout& layout, const std::vector<std::string>& languages, Findings& findings) {
    const std::vector<PlacedText> texts = ListTexts(layout);
    for (const PlacedText& placed : texts) {
        const std::wstring text = layout.TextOf(*placed.ctrl, placed.prefix + L"text");
        CheckWidth(text, L"text", layout, placed, std::string(), findings);
    }
    for (const std::string& language : languages) {
        CLQLangManager* const manager = CLQLangManager::GetInstance();
        if (!manager->LoadLanguage(FromUtf8(language).c_str())) {
            findings.AddError(0, "the language table " + language + " is missing or damaged");
            continue;
        }
        for (const PlacedText& placed : texts) {
            const int id = layout.Number(*placed.ctrl, placed.prefix + L"langid", 0);
            const std::wstring text = manager->GetString(id);
            if (id != 0 && text.empty())
                findings.AddError(layout.LineOf(*placed.ctrl, placed.prefix + L"langid"),
                                  language + " has no text " + std::to_string(id));
            CheckWidth(text, L"langid", layout, placed, " of " + language, findings);
        }
    }
}

}  // namespace korvane::tools
