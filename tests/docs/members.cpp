#include "tests/docs/members.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <stdexcept>

namespace vorlane::docs {

namespace {

std::string Trimmed(const std::string& text) {
    const auto begin = text.find_first_not_of(" \t");
    return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

// A statement of a class and what is said of it.
struct Statement {
    std::string Code;
    std::string Text;

    void Add(const std::string& line) { Code += (Code.empty() ? "" : " ") + line; }
    void Say(const std::string& comment) { Text += (Text.empty() ? "" : " ") + comment; }

    bool Complete() const {
        const auto count = [&](char c) { return std::count(Code.begin(), Code.end(), c); };
        return !Code.empty() && count('(') == count(')') && count('{') == count('}') &&
               (Code.back() == ';' || Code.back() == '}');
    }
};

// Where what was opened in front of position ends.
size_t Closing(const std::string& code, size_t position, char open, char close) {
    for (int depth = 1; position < code.size(); ++position) {
        if (code[position] == open) ++depth;
        if (code[position] == close && --depth == 0) return position;
    }
    throw std::runtime_error("not closed: " + code);
}

// "Event<A, B> Name;", "Type Name(arguments) const;", "Type Name{...};"; false for what is no member of interest.
bool Read(const Statement& statement, Member& member) {
    const std::string& code = statement.Code;
    static const std::regex skipped("^(class|struct|enum|using|template|friend|explicit|~).*|.*\\boperator.*");
    if (std::regex_match(code, skipped)) return false;
    member.Text = statement.Text;
    if (code.compare(0, 6, "Event<") == 0) {
        const size_t end = Closing(code, 6, '<', '>');
        member.Is = Member::Kind::Event;
        member.Type = code.substr(6, end - 6);
        member.Name = Trimmed(code.substr(end + 1, code.size() - end - 2));
        return true;
    }
    const size_t open = code.find_first_of("({;=");
    const std::string head = Trimmed(code.substr(0, open));
    const size_t blank = head.rfind(' ');
    if (blank == std::string::npos) return false;  // a constructor
    member.Name = head.substr(blank + 1);
    member.Type = head.substr(0, blank);
    member.Static = member.Type.compare(0, 7, "static ") == 0;
    if (member.Static) member.Type.erase(0, 7);
    if (code[open] != '(') {
        member.Is = Member::Kind::Data;
        return true;
    }
    const size_t end = Closing(code, open + 1, '(', ')');
    member.Arguments = code.substr(open + 1, end - open - 1);
    const std::string rest = code.substr(end + 1, code.find('{', end) - end - 1);
    member.Const = rest.find("const") != std::string::npos;
    return rest.find("override") == std::string::npos;
}

// Reads the body of a class line by line.
class Body {
public:
    explicit Body(bool isPublic) : public_(isPublic) {}

    void Add(const std::string& line) {
        const std::string text = Trimmed(line);
        if (current_.Code.empty() && AddPlain(text)) return;
        const size_t comment = text.find("// ");
        current_.Add(Trimmed(text.substr(0, comment)));
        if (comment != std::string::npos) current_.Say(text.substr(comment + 3));
        if (!current_.Complete()) return;
        Member member;
        if (public_ && Read(current_, member)) members.push_back(member);
        current_ = {};
    }

    std::vector<Member> members;

private:
    // What is not part of a statement.
    bool AddPlain(const std::string& text) {
        if (text == "public:" || text == "private:" || text == "protected:") {
            public_ = text == "public:";
        } else if (text.compare(0, 2, "//") != 0) {
            if (text.empty()) current_ = {};
            return text.empty();
        } else if (text.compare(0, 6, "// ---") == 0) {
            current_ = {};
        } else {
            current_.Say(Trimmed(text.substr(2)));
        }
        return true;
    }

    bool public_;
    Statement current_;
};

}  // namespace

std::vector<Member> MembersOf(const std::string& header, const std::string& name) {
    std::ifstream file(header);
    const std::regex begin("^(class|struct) " + name + "\\b[^;]*\\{$");
    std::string line;
    while (std::getline(file, line) && !std::regex_match(line, begin)) {
    }
    if (!file) throw std::runtime_error(header + ": no " + name);
    Body body(line.compare(0, 6, "struct") == 0);
    while (std::getline(file, line) && line != "};") body.Add(line);
    return body.members;
}

}  // namespace vorlane::docs
