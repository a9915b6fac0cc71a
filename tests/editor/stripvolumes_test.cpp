// The volumes of the sounds of a slide.
#include "editor/volumepanel.h"
#include "tests/editor/stripfixture.h"

#include <QSlider>

namespace vorlane::editor {
namespace {

class StripVolumesTest : public StripFixture {};

TEST_F(StripVolumesTest, TheVolumesOfASlideAreSetWithAWayBack) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Sounds().add(SoundKind::Music, {Sound("m.wav", 2)}, 1);
    Sounds().add(SoundKind::Comment, {Sound("c.wav", 2)}, 1);
    window_->navigator().setCurrent(1);
    Beginning("Volumes").trigger();
    auto* panel = window_->findChild<VolumePanel*>();
    ASSERT_NE(panel, nullptr);
    const auto sliders = panel->findChildren<QSlider*>();
    ASSERT_EQ(sliders.size(), 3);
    EXPECT_EQ(sliders[0]->value(), 100);
    EXPECT_EQ(sliders[1]->value(), 25);
    EXPECT_EQ(sliders[2]->value(), 100);
    sliders[0]->setValue(80);
    sliders[1]->setValue(10);
    sliders[2]->setValue(60);
    panel->accept();
    const auto volumes = [this] {
        const TimeLineSound music = *TheStrip().Musiques().ItemFromPos(1);
        const TimeLineSound comment = *TheStrip().Comments().ItemFromPos(1);
        return QList<int>{music.VolNormal, music.VolPendantComment, comment.VolComment};
    };
    EXPECT_EQ(volumes(), QList<int>({80, 10, 60}));
    Undo();
    EXPECT_EQ(volumes(), QList<int>({100, 25, 100}));
}

TEST_F(StripVolumesTest, TheVolumesStayWithTheirSlideWhileTheListChanges) {
    ASSERT_TRUE(OpenPictures("abcd"));
    Sounds().add(SoundKind::Comment, {Sound("b.wav", 2)}, 1);
    Sounds().add(SoundKind::Comment, {Sound("c.wav", 2)}, 2);
    const auto volumes = [this] {
        QStringList told;
        for (const TimeLineSound& sound : Sounds().all(SoundKind::Comment))
            told.push_back(QFileInfo(sound.Nom).baseName() + QString::number(sound.VolComment));
        return told.join(" ").toStdString();
    };
    const auto openPanel = [this](int slide) {
        window_->navigator().setCurrent(slide);
        Beginning("Volumes").trigger();
        return window_->findChild<VolumePanel*>();
    };
    VolumePanel* panel = openPanel(2);
    panel->findChild<QSlider*>()->setValue(60);
    window_->slides().sort({SortBy::Name, true});
    ASSERT_EQ(Letters(), "dcba");
    panel->accept();
    EXPECT_EQ(volumes(), "c60 b100");
    panel = openPanel(1);
    panel->findChild<QSlider*>()->setValue(30);
    window_->navigator().setCurrent(1);
    window_->removeSelected();
    ASSERT_EQ(Letters(), "dba");
    panel->accept();
    EXPECT_EQ(volumes(), "b100");
    Undo();
    EXPECT_EQ(volumes(), "c60 b100");
}

TEST_F(StripVolumesTest, AnotherShowClosesThePanelOfVolumes) {
    ASSERT_TRUE(OpenPictures("ab"));
    Sounds().add(SoundKind::Comment, {Sound("c.wav", 2)}, 0);
    window_->navigator().setCurrent(0);
    Beginning("Volumes").trigger();
    ASSERT_NE(window_->findChild<VolumePanel*>(), nullptr);
    ASSERT_TRUE(Open(Folder()));
    EXPECT_EQ(window_->findChild<VolumePanel*>(), nullptr);
}

TEST_F(StripVolumesTest, WithoutASoundThereIsNoVolume) {
    ASSERT_TRUE(OpenPictures("ab"));
    window_->navigator().setCurrent(0);
    EXPECT_FALSE(Beginning("Volumes").isEnabled());
    const int key = TheStrip().keyOf(0);
    EXPECT_FALSE(Sounds().setVolumes(key, MusicVolumes{1, 2}, 3));
    Sounds().add(SoundKind::Comment, {Sound("c.wav", 2)}, 0);
    EXPECT_TRUE(Beginning("Volumes").isEnabled());
    EXPECT_FALSE(Sounds().setVolumes(key, MusicVolumes{1, 2}, 100));
    EXPECT_TRUE(Sounds().setVolumes(key, MusicVolumes{1, 2}, 3));
}

}  // namespace
}  // namespace vorlane::editor
