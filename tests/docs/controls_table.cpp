// controls-table SOURCES [PAGE]: what the controls offer, as a page of tables made from their headers, from their
// tables of persisted properties and from the help texts of form designers. With PAGE: whether that page is what would
// be made now.
#include "platform/bagtext.h"
#include "platform/headless/window.h"
#include "sheet/vorlane.h"
#include "slide/ediapolight.h"
#include "tests/docs/members.h"
#include "timeline/etimeline.h"
#include "widgets/designer/propertyhelp.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <regex>
#include <sstream>

namespace {

using vorlane::docs::Member;
using vorlane::docs::MembersOf;
using Defaults = std::map<std::string, std::string>;

struct Control {
    std::string Name;
    std::string What;
    std::string Header;
    std::string Events;  // name and header of the class of its events
    std::string EventsHeader;
    std::string Widget;
    Defaults Saved;  // the defaults of its persisted properties
    const vorlane::designer::PropertyTable* Help = nullptr;
};

// A value as the text of a bag spells it.
std::string Spelled(const vorlane::BagValue& value) {
    if (std::holds_alternative<vorlane::Font>(value)) return "the host's";
    if (std::holds_alternative<vorlane::Picture>(value)) return "none";
    if (const auto* number = std::get_if<int64_t>(&value); number != nullptr && *number > INT16_MAX) {
        std::ostringstream color;  // nothing else is as large
        color << "`0x" << std::hex << std::uppercase << *number << "`";
        return color.str();
    }
    vorlane::PropertyBag bag;
    bag.SetValue("k", value);
    const std::string text = BagToText(bag);
    const size_t begin = text.find(": ") + 2;
    return "`" + text.substr(begin, text.find_last_of('}') - begin - 1) + "`";
}

template <class T>
Defaults SavedDefaults() {
    vorlane::headless::Desktop desktop;
    vorlane::headless::Window window(desktop, {0, 0, 640, 480});
    T control(desktop.Roles(), window.Ambient());
    window.Host(control);
    Defaults defaults;
    for (const auto& property : T::PersistedProperties()) defaults[property.Key] = Spelled(property.Default(control));
    return defaults;
}

std::string Cell(std::string text) {
    text = std::regex_replace(text, std::regex("\\bvorlane::|\\bstd::"), "");
    return std::regex_replace(text, std::regex("\\|"), "\\|");
}

// A type as hosts think of it: what is handed over as a constant reference is a value.
std::string Plain(const std::string& type) {
    return Cell(std::regex_replace(type, std::regex("\\bconst ([^&,<>]+(<[^<>]*>)?)&"), "$1"));
}

// What is said of a member, with its help text.
std::string Said(const Control& control, const std::string& member, const std::string& text) {
    if (control.Help == nullptr) return Cell(text);
    const auto help = std::find_if(control.Help->begin(), control.Help->end(),
                                   [&](const vorlane::designer::PropertyHelp& entry) { return entry.Name == member; });
    if (help == control.Help->end()) return Cell(text);
    return Cell(text + (text.empty() ? "*" : " *") + help->Text + "*");
}

std::string Code(const std::string& text) {
    return text.empty() ? "" : "`" + text + "`";
}

void Row(std::ostream& page, const std::vector<std::string>& cells) {
    for (const std::string& cell : cells) page << "| " << cell << (cell.empty() ? "" : " ");
    page << "|\n";
}

void Head(std::ostream& page, const std::string& title, const std::vector<std::string>& columns) {
    page << "\n### " << title << "\n\n";
    Row(page, columns);
    Row(page, std::vector<std::string>(columns.size(), "---"));
}

const Member* Find(const std::vector<Member>& members, const std::string& name) {
    const auto found = std::find_if(members.begin(), members.end(), [&](const Member& m) { return m.Name == name; });
    return found == members.end() ? nullptr : &*found;
}

bool IsGetter(const Member& member, const std::vector<Member>& all) {
    if (member.Is != Member::Kind::Function || member.Type == "void") return false;
    if (member.Name == "PersistedProperties") return false;
    return Find(all, "Set" + member.Name) != nullptr || (member.Arguments.empty() && (member.Const || member.Static));
}

bool IsSetter(const Member& member) {
    return member.Is == Member::Kind::Function && member.Name.compare(0, 3, "Set") == 0 && member.Type == "void";
}

// A property is what can be read without being told anything, or set.
struct Property {
    std::string Name;
    std::string Arguments = {};
    std::string Type = {};
    bool Read = false;
    bool Set = false;
    std::string Text = {};
};

class Properties {
public:
    Properties(const std::vector<Member>& members, const std::vector<Member>& inherited) {
        for (const Member& member : members) {
            if (IsGetter(member, members)) {
                Property& property = Of(member.Name, member);
                property.Type = member.Type;
                property.Arguments = member.Arguments;
                property.Read = true;
            } else if (IsSetter(member)) {
                Property& property = Of(member.Name.substr(3), member);
                property.Set = true;
                const Member* const getter = Find(inherited, property.Name);
                property.Read = property.Read || getter != nullptr;
                if (property.Type.empty()) property.Type = getter ? getter->Type : ArgumentType(member);
            }
        }
    }

    std::vector<Property> list;

private:
    Property& Of(const std::string& name, const Member& member) {
        auto found = std::find_if(list.begin(), list.end(), [&](const Property& p) { return p.Name == name; });
        if (found == list.end()) found = list.insert(found, Property{name});
        if (!member.Text.empty()) found->Text += (found->Text.empty() ? "" : " ") + member.Text;
        return *found;
    }

    static std::string ArgumentType(const Member& setter) {
        return setter.Arguments.substr(0, setter.Arguments.rfind(' '));
    }
};

void WriteProperties(std::ostream& page, const Control& control, const std::vector<Property>& properties) {
    Head(page, "Properties", {"Property", "Type", "Access", "Saved; default", ""});
    for (const Property& property : properties) {
        const auto saved = control.Saved.find(property.Name);
        const std::string access = !property.Set ? "read" : property.Read ? "read, set" : "set";
        const std::string index = property.Arguments.empty() ? "" : "(" + Plain(property.Arguments) + ")";
        Row(page, {Code(property.Name + index), Code(Plain(property.Type)), access,
                   saved == control.Saved.end() ? "" : saved->second, Said(control, property.Name, property.Text)});
    }
}

void WriteMethods(std::ostream& page, const Control& control, const std::vector<Member>& members) {
    Head(page, "Methods", {"Method", "Gives", ""});
    for (const Member& member : members) {
        const bool property = IsGetter(member, members) || IsSetter(member);
        if (member.Is != Member::Kind::Function || property || member.Name == "PersistedProperties") continue;
        Row(page, {Code(member.Name + "(" + Plain(member.Arguments) + ")"),
                   member.Type == "void" ? "" : Code(Plain(member.Type)), Said(control, member.Name, member.Text)});
    }
}

void WriteEvents(std::ostream& page, const std::vector<Member>& members) {
    Head(page, "Events", {"Event", "Arguments", ""});
    for (const Member& member : members) {
        if (member.Is != Member::Kind::Event) continue;
        Row(page, {Code(member.Name), Code(Plain(member.Type)), Cell(member.Text)});
    }
}

// What a control is made of and shows its host.
void WriteParts(std::ostream& page, const std::vector<Member>& members) {
    const auto isPart = [](const Member& member) { return member.Is == Member::Kind::Data && member.Name != "Events"; };
    if (std::none_of(members.begin(), members.end(), isPart)) return;
    Head(page, "Parts", {"Part", "Type", ""});
    for (const Member& member : members) {
        if (isPart(member)) Row(page, {Code(member.Name), Code(Plain(member.Type)), Cell(member.Text)});
    }
}

void Write(std::ostream& page, const std::string& sources, const Control& control) {
    const auto members = MembersOf(sources + "/" + control.Header, control.Name);
    auto inherited = MembersOf(sources + "/platform/usercontrol.h", "UserControl");
    const auto base = MembersOf(sources + "/platform/control.h", "Control");
    inherited.insert(inherited.end(), base.begin(), base.end());
    page << "\n## " << control.Name << "\n\n"
         << control.What << " [" << control.Header << "](../" << control.Header << ")";
    if (!control.Widget.empty()) page << ", as a Qt widget [" << control.Widget << "](../" << control.Widget << ")";
    page << ".\n";
    const Properties properties(members, inherited);
    if (!properties.list.empty()) WriteProperties(page, control, properties.list);
    WriteMethods(page, control, members);
    auto events = control.Events.empty() ? members : MembersOf(sources + "/" + control.EventsHeader, control.Events);
    WriteEvents(page, events);
    WriteParts(page, members);
}

std::string Page(const std::string& sources) {
    const std::vector<Control> controls{
        {"Vorlane", "The contact sheet,", "sheet/vorlane.h", "VorlaneEvents", "sheet/events.h",
         "widgets/vorlanewidget.h", SavedDefaults<vorlane::Vorlane>(), &vorlane::designer::SheetProperties()},
        {"eDiapoLight", "One slide,", "slide/ediapolight.h", "DiapoEvents", "slide/diapoevents.h",
         "widgets/diapolightwidget.h", SavedDefaults<vorlane::eDiapoLight>(), &vorlane::designer::SlideProperties()},
        {"eTimeLine", "The time line,", "timeline/etimeline.h", "TimeLineEvents", "timeline/timelineevents.h",
         "widgets/timelinewidget.h", SavedDefaults<vorlane::eTimeLine>(), &vorlane::designer::TimeLineProperties()},
        {"ClsDiapo", "The slides of a sheet by index,", "sheet/clsdiapo.h", "", "", "", {}},
        {"ClsSon", "The sounds of one kind,", "timeline/clsson.h", "ClsSonEvents", "timeline/clsson.h", "", {}},
        {"ClsMenuCtx",
         "The popup menu of the time line,",
         "timeline/clsmenuctx.h",
         "ClsMenuCtxEvents",
         "timeline/clsmenuctx.h",
         "",
         {}},
    };
    std::ostringstream page;
    page << "# Properties, methods and events\n\n"
            "What the controls offer their hosts. This page is made from their headers and from their tables of saved\n"
            "properties by `cmake --build --preset dev --target controls-table`; a test tells when it is out of date.\n"
            "An argument with `&` is the host's to answer. A default is that of a saved control. What is said of a\n"
            "member may go for those below it, too; what stands in italics is its help text. What all controls share "
            "stands in\n"
            "[platform/control.h](../platform/control.h) and [platform/usercontrol.h](../platform/usercontrol.h).\n";
    for (const Control& control : controls) Write(page, sources, control);
    return page.str();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    const std::string page = Page(argv[1]);
    if (argc == 2) {
        std::cout << page;
        return 0;
    }
    std::ifstream file(argv[2]);
    const std::string current{std::istreambuf_iterator<char>(file), {}};
    if (current == page) return 0;
    std::cerr << argv[2] << " is out of date: cmake --build --preset dev --target controls-table\n";
    return 1;
}
