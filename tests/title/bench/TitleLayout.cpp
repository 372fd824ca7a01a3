#include "tests/title/bench/TitleLayout.h"

namespace korvane::test {

namespace {

struct Part {
    const char* name;
    const char* group;  ///< empty for the strip itself
    const char* kind;
    const char* properties;
};

// All groups begin at the corner of the strip, so that a control stays where it is without its group.
constexpr Part kParts[] = {
    {"StInfo", "", "static", "x=200\ny=10\nwidth=240\nheight=40\nfontheight=24\nfontwidth=24\n"},
    {"BtnTACancel", "", "button", "x=440\ny=10\nwidth=60\nheight=40\nelement0.normal=cancel.lqi\n"},
    {"BtnToFront", "", "button", "x=520\ny=10\nwidth=40\nheight=40\nelement0.normal=front.lqi\n"},
    {"BtnToRear", "", "button", "x=520\ny=10\nwidth=40\nheight=40\nelement0.normal=rear.lqi\n"},
    {"BtnGuide", "", "button", "x=570\ny=10\nwidth=40\nheight=40\nelement0.normal=guide.lqi\n"},
    {"BtnBack", "", "button",
     "x=0\ny=10\nwidth=40\nheight=40\nelement0.normal=back.lqi\nelement1.type=text\nelement1.text=Back\n"},
    {"GpIconInfo", "", "group", "x=0\ny=0\nwidth=200\nheight=60\n"},
    {"IconGPS", "GpIconInfo", "static", "x=0\ny=30\nwidth=20\nheight=20\nbackground=gps.lqi\n"},
    {"IconMute", "GpIconInfo", "static", "x=20\ny=30\nwidth=20\nheight=20\nbackground=mute.lqi\n"},
    {"IconBT", "GpIconInfo", "static", "x=40\ny=30\nwidth=20\nheight=20\n"},
    {"GpRDS", "GpIconInfo", "group", "x=0\ny=0\nwidth=200\nheight=60\n"},
    {"IconREG", "GpRDS", "static", "x=60\ny=30\nwidth=20\nheight=20\n"},
    {"IconPTY", "GpRDS", "static", "x=80\ny=30\nwidth=20\nheight=20\n"},
    {"IconAF", "GpRDS", "static", "x=100\ny=30\nwidth=20\nheight=20\n"},
    {"IconTA", "GpRDS", "static", "x=120\ny=30\nwidth=20\nheight=20\n"},
    {"IconTP", "GpRDS", "static", "x=140\ny=30\nwidth=20\nheight=20\n"},
    {"St24HR", "", "static", "x=700\ny=10\nwidth=60\nheight=40\n"},
    {"Gp12HR", "", "group", "x=0\ny=0\nwidth=790\nheight=60\n"},
    {"St12HR", "Gp12HR", "static", "x=700\ny=10\nwidth=60\nheight=40\n"},
    {"IconAM", "Gp12HR", "static", "x=765\ny=10\nwidth=20\nheight=20\nbackground=am.lqi\n"},
    {"IconPM", "Gp12HR", "static", "x=765\ny=30\nwidth=20\nheight=20\nbackground=pm.lqi\n"},
};

const Part* FindPart(const std::string& name) {
    for (const Part& part : kParts) {
        if (part.name == name)
            return &part;
    }
    return nullptr;
}

}  // namespace

std::set<std::string> TitleLayout::Names() {
    std::set<std::string> names;
    for (const Part& part : kParts)
        names.insert(part.name);
    return names;
}

std::string TitleLayout::Text() const {
    std::map<std::string, std::string> children;
    std::string sections;
    for (const Part& part : kParts) {
        if (without.count(part.name))
            continue;
        std::string group = part.group;
        while (without.count(group))
            group = FindPart(group)->group;
        children[group] += (children[group].empty() ? "" : ",") + std::string(part.name);
    }
    for (const Part& part : kParts) {
        if (without.count(part.name))
            continue;
        const auto kind = kinds.find(part.name);
        const auto more = properties.find(part.name);
        sections += "[" + std::string(part.name) + "]\nname=" + part.name;
        sections += "\nkind=" + (kind == kinds.end() ? std::string(part.kind) : kind->second) + "\n";
        if (more != properties.end())
            sections += more->second + "\n";
        sections += part.properties;
        if (children.count(part.name))
            sections += "children=" + children[part.name] + "\n";
    }
    return "[Layout]\nkind=group\nx=3\ny=7\nwidth=790\nheight=60\nchildren=" + children[""] + "\n" + sections;
}

}  // namespace korvane::test
