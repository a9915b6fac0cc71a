#include "timelinetest.h"

#include <functional>
#include <map>
#include <vector>

namespace vorlane {
namespace {

using Values = std::map<std::string, BagValue>;

class PersistenceTest : public TimeLineTest {
protected:
    Values Persisted() const {
        Values values;
        for (const auto& property : eTimeLine::PersistedProperties())
            values.emplace(property.Key, property.Value(*line));
        return values;
    }
    // A bag with a value of its own under every key.
    static PropertyBag FullBag() {
        PropertyBag bag;
        int64_t number = 21;
        for (const auto& property : eTimeLine::PersistedProperties()) bag.SetValue(property.Key, number++);
        bag.SetValue("Enabled", false);
        bag.SetValue("GradientColorInverse", true);
        bag.SetValue("Round", true);
        bag.SetValue("ShowBarres", false);
        bag.SetValue("Style", int64_t{0});
        bag.SetValue("DiapoWidth", 87.5);
        bag.SetValue("Font", Font{"Serif", 12});
        return bag;
    }
    static Values In(const PropertyBag& bag) { return {bag.Values().begin(), bag.Values().end()}; }
};

TEST_F(PersistenceTest, TheKeysAreReadInTheirOrder) {
    std::string keys;
    for (const auto& property : eTimeLine::PersistedProperties()) keys += property.Key + "\n";
    EXPECT_EQ(keys,
              "BarreMarge\nBarreHeight\nBarreOnTop\nBorderStyle\nBorderColor\nBorderMusicColor\nBorderMusicColor2\n"
              "BorderCommentColor\nBorderCommentColor2\nEnabled\nFont\nForeColor\nGradientColorStart\n"
              "GradientColorEnd\nGradientColorInverse\nGradientDirection\nGradientMusicColorStart\n"
              "GradientMusicColorEnd\nGradientCommentColorStart\nGradientCommentColorEnd\nGradientMusicColorStart2\n"
              "GradientMusicColorEnd2\nGradientCommentColorStart2\nGradientCommentColorEnd2\n"
              "RecordGradientColorStart\nRecordGradientColorEnd\nRecordBorderColor\nRound\nRoundBorder\n"
              "ExpositionTime\nStartPoint\nDiapoWidth\nStyle\nMargeGauche\nShowBarres\nLectureIndicPos\n");
}

TEST_F(PersistenceTest, AnEmptyBagGivesTheDefaults) {
    line->ReadProperties(PropertyBag{});
    const auto number = [](int64_t value) { return BagValue(value); };
    const Values expected{
        {"BarreMarge", number(3)},
        {"BarreHeight", number(8)},
        {"BarreOnTop", number(0)},
        {"BorderStyle", number(0)},
        {"BorderColor", number(0xE3CFC9)},
        {"BorderMusicColor", number(0x00C0C0)},
        {"BorderMusicColor2", number(0x0080FF)},
        {"BorderCommentColor", number(0x00C000)},
        {"BorderCommentColor2", number(0x808000)},
        {"Enabled", true},
        {"Font", Font{}},
        {"ForeColor", number(0xF34141)},
        {"GradientColorStart", number(0xFFFFFF)},
        {"GradientColorEnd", number(0xF0DCC8)},
        {"GradientColorInverse", false},
        {"GradientDirection", number(1)},
        {"GradientMusicColorStart", number(0x80FFFF)},
        {"GradientMusicColorEnd", number(0xFFFFFF)},
        {"GradientCommentColorStart", number(0x80FF80)},
        {"GradientCommentColorEnd", number(0xFFFFFF)},
        {"GradientMusicColorStart2", number(0x80C0FF)},
        {"GradientMusicColorEnd2", number(0xFFFFFF)},
        {"GradientCommentColorStart2", number(0xFFFF80)},
        {"GradientCommentColorEnd2", number(0xFFFFFF)},
        {"RecordGradientColorStart", number(0x0101EB)},
        {"RecordGradientColorEnd", number(0x6060FF)},
        {"RecordBorderColor", number(0x0EADFA)},
        {"Round", false},
        {"RoundBorder", number(7)},
        {"ExpositionTime", number(5)},
        {"StartPoint", number(0)},
        {"DiapoWidth", 150.0},
        {"Style", number(1)},
        {"MargeGauche", number(0)},
        {"ShowBarres", true},
        {"LectureIndicPos", number(1)},
    };
    const Values found = Persisted();
    ASSERT_EQ(found.size(), expected.size());
    for (const auto& [key, value] : expected) EXPECT_TRUE(found.at(key) == value) << key;
}

TEST_F(PersistenceTest, ATimeLineJustPlacedHasASolidBorderAndMarksBySlides) {
    line->InitProperties();
    EXPECT_EQ(line->BorderStyle(), 12);
    EXPECT_EQ(line->Style(), etlType::etltFollowDiapo);
    Values fresh = Persisted();
    fresh.erase("BorderStyle");
    line->ReadProperties(PropertyBag{});
    Values read = Persisted();
    read.erase("BorderStyle");
    EXPECT_TRUE(fresh == read) << "all else begins with the defaults";
}

TEST_F(PersistenceTest, AStoredTimeLineWithoutABorderStyleReads0) {
    line->InitProperties();
    line->SetBorderStyle(0);
    PropertyBag bag;
    line->WriteProperties(bag);
    EXPECT_FALSE(bag.Contains("BorderStyle"));
    line->InitProperties();
    line->ReadProperties(bag);
    EXPECT_EQ(line->BorderStyle(), 0);
}

TEST_F(PersistenceTest, ANewTimeLineStoresItsBorderAlone) {
    line->InitProperties();
    PropertyBag bag;
    line->WriteProperties(bag);
    EXPECT_TRUE((In(bag) == Values{{"BorderStyle", int64_t{12}}}));
}

TEST_F(PersistenceTest, EveryValueComesBack) {
    line->ReadProperties(FullBag());
    EXPECT_TRUE(Persisted() == In(FullBag()));
    PropertyBag written;
    line->WriteProperties(written);
    EXPECT_TRUE(In(written) == In(FullBag()));
    EXPECT_EQ(line->DiapoWidth(), 87.5F);
    EXPECT_FALSE(line->Enabled());
    EXPECT_EQ(line->Font().Name, "Serif");
}

TEST_F(PersistenceTest, AValueThatCantBeReadLeavesItsPropertyAndTheOthersAreRead) {
    line->InitProperties();
    PropertyBag bag;
    for (const char* key : {"BarreHeight", "Font", "Enabled", "DiapoWidth"}) bag.SetValue(key, std::string("?"));
    bag.SetValue("BarreMarge", int64_t{300});
    bag.SetValue("MargeGauche", int64_t{9});
    line->ReadProperties(bag);
    EXPECT_EQ(line->BarreHeight(), 8);
    EXPECT_EQ(line->BarreMarge(), 3);
    EXPECT_EQ(line->DiapoWidth(), 150.0F);
    EXPECT_EQ(line->MargeGauche(), 9);
}

TEST_F(PersistenceTest, ReadingAndInitialisingTellNoChangeAndPaintNothing) {
    EXPECT_EQ(PaintsIn([&] { line->InitProperties(); }), 0);
    EXPECT_EQ(PaintsIn([&] { line->ReadProperties(FullBag()); }), 0);
    EXPECT_EQ(Heard(), "");
}

TEST_F(PersistenceTest, TheFontOfANewTimeLineIsTheHosts) {
    Ambient ambient = window.Ambient();
    ambient.Font = Font{"Hôte", 11};
    Make(ambient);
    line->InitProperties();
    EXPECT_EQ(line->Font(), ambient.Font);
}

TEST_F(PersistenceTest, TheDeviceContextIsTheNumberOfTheWindow) {
    EXPECT_NE(line->hDC(), 0);
    EXPECT_EQ(line->hDC(), window.Handle());
}

TEST_F(PersistenceTest, TheFirstPaintFollowsShow) {
    line->AttachVorlane(&sheet);
    EXPECT_EQ(PaintsIn([&] { window.Host(*line, Plain()); }), 1);
}

// --- Setters ---

struct Setter {
    std::string Key;
    std::function<void(eTimeLine&)> Set;
    enum { Always, HostOnly } Paints;
};

const std::vector<Setter>& Setters() {
    using T = eTimeLine;
    static const std::vector<Setter> all{
        {"BorderColor", [](T& line) { line.SetBorderColor(1); }, Setter::Always},
        {"ForeColor", [](T& line) { line.SetForeColor(1); }, Setter::Always},
        {"GradientDirection", [](T& line) { line.SetGradientDirection(4); }, Setter::Always},
        {"GradientColorStart", [](T& line) { line.SetGradientColorStart(1); }, Setter::Always},
        {"GradientColorEnd", [](T& line) { line.SetGradientColorEnd(1); }, Setter::Always},
        {"GradientColorInverse", [](T& line) { line.SetGradientColorInverse(true); }, Setter::Always},
        {"RecordGradientColorEnd", [](T& line) { line.SetRecordGradientColorEnd(1); }, Setter::Always},
        {"MargeGauche", [](T& line) { line.SetMargeGauche(1); }, Setter::Always},
        {"LectureIndicPos", [](T& line) { line.SetLectureIndicPos(2); }, Setter::Always},
        {"Round", [](T& line) { line.SetRound(true); }, Setter::Always},
        {"RoundBorder", [](T& line) { line.SetRoundBorder(9); }, Setter::Always},
        {"StartPoint", [](T& line) { line.SetStartPoint(1); }, Setter::Always},
        {"ExpositionTime", [](T& line) { line.SetExpositionTime(9); }, Setter::Always},
        {"DiapoWidth", [](T& line) { line.SetDiapoWidth(1.5F); }, Setter::Always},
        {"Style", [](T& line) { line.SetStyle(etlType::etltFree); }, Setter::Always},
        {"ShowBarres", [](T& line) { line.SetShowBarres(false); }, Setter::Always},
        {"Enabled", [](T& line) { line.SetEnabled(false); }, Setter::Always},
        {"Font",
         [](T& line) {
             line.SetFont(Font{"Serif", 12});
         },
         Setter::Always},
        {"BarreHeight", [](T& line) { line.SetBarreHeight(9); }, Setter::HostOnly},
        {"BarreMarge", [](T& line) { line.SetBarreMarge(9); }, Setter::HostOnly},
        {"BarreOnTop", [](T& line) { line.SetBarreOnTop(1); }, Setter::HostOnly},
        {"BorderMusicColor", [](T& line) { line.SetBorderMusicColor(1); }, Setter::HostOnly},
        {"BorderMusicColor2", [](T& line) { line.SetBorderMusicColor2(1); }, Setter::HostOnly},
        {"BorderCommentColor", [](T& line) { line.SetBorderCommentColor(1); }, Setter::HostOnly},
        {"BorderCommentColor2", [](T& line) { line.SetBorderCommentColor2(1); }, Setter::HostOnly},
        {"GradientMusicColorStart", [](T& line) { line.SetGradientMusicColorStart(1); }, Setter::HostOnly},
        {"GradientMusicColorEnd", [](T& line) { line.SetGradientMusicColorEnd(1); }, Setter::HostOnly},
        {"GradientMusicColorStart2", [](T& line) { line.SetGradientMusicColorStart2(1); }, Setter::HostOnly},
        {"GradientMusicColorEnd2", [](T& line) { line.SetGradientMusicColorEnd2(1); }, Setter::HostOnly},
        {"GradientCommentColorStart", [](T& line) { line.SetGradientCommentColorStart(1); }, Setter::HostOnly},
        {"GradientCommentColorEnd", [](T& line) { line.SetGradientCommentColorEnd(1); }, Setter::HostOnly},
        {"GradientCommentColorStart2", [](T& line) { line.SetGradientCommentColorStart2(1); }, Setter::HostOnly},
        {"GradientCommentColorEnd2", [](T& line) { line.SetGradientCommentColorEnd2(1); }, Setter::HostOnly},
        {"RecordBorderColor", [](T& line) { line.SetRecordBorderColor(1); }, Setter::HostOnly},
        {"RecordGradientColorStart", [](T& line) { line.SetRecordGradientColorStart(1); }, Setter::HostOnly},
    };
    return all;
}

TEST_F(PersistenceTest, ASetterStoresPaintsAndTellsTheChangeOnce) {
    Start();
    for (const Setter& setter : Setters()) {
        const BagValue before = Persisted().at(setter.Key);
        EXPECT_EQ(PaintsIn([&] { setter.Set(*line); }), 1) << setter.Key;
        EXPECT_EQ(Heard(), "host changed " + setter.Key + "\n");
        EXPECT_FALSE(Persisted().at(setter.Key) == before) << setter.Key;
        EXPECT_EQ(PaintsIn([&] { setter.Set(*line); }), 0) << setter.Key << " has that value already";
        EXPECT_EQ(Heard(), "") << setter.Key;
    }
}

TEST_F(PersistenceTest, InADesignerWhatShowsInAHostOnlyChangesWithoutAPaint) {
    Ambient designer = window.Ambient();
    designer.UserMode = false;
    Make(designer);
    Start();
    for (const Setter& setter : Setters()) {
        const int expected = setter.Paints == Setter::Always ? 1 : 0;
        EXPECT_EQ(PaintsIn([&] { setter.Set(*line); }), expected) << setter.Key;
        EXPECT_EQ(Heard(), "host changed " + setter.Key + "\n");
    }
    EXPECT_EQ(line->BarreHeight(), 9);
}

TEST_F(PersistenceTest, EveryPersistedPropertyButTheBorderStyleHasItsSetterTested) {
    Values untested = Persisted();
    for (const Setter& setter : Setters()) EXPECT_EQ(untested.erase(setter.Key), 1U) << setter.Key;
    ASSERT_EQ(untested.size(), 1U);
    EXPECT_EQ(untested.begin()->first, "BorderStyle");
}

TEST_F(PersistenceTest, SettingTheBorderStyleToItsValueStillClearsAndPaints) {
    Start();
    EXPECT_TRUE(Paints([&] { EXPECT_EQ(PaintsIn([&] { line->SetBorderStyle(line->BorderStyle()); }), 1); }));
    EXPECT_EQ(Heard(), "host changed BorderStyle\n");
}

}  // namespace
}  // namespace vorlane
