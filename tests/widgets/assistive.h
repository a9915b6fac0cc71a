// A program in which assistive programs listen, without any being there: Qt tells them nothing unless its switch says
// that one is. The switch is exported; its header comes with Qt's private ones alone, so that it is declared here.
#pragma once

class QPlatformAccessibility {
public:
    void setActive(bool active);
};

class QPlatformIntegration {
public:
    QPlatformAccessibility* accessibility() const;  // as platforms have it that add nothing, such as the offscreen one
};

class QGuiApplicationPrivate {
public:
    static QPlatformIntegration* platform_integration;
};

namespace vorlane::test {

class AssistivePrograms {
public:
    AssistivePrograms() { Listen(true); }
    ~AssistivePrograms() { Listen(false); }
    AssistivePrograms(const AssistivePrograms&) = delete;
    AssistivePrograms& operator=(const AssistivePrograms&) = delete;

private:
    static void Listen(bool active) {
        QGuiApplicationPrivate::platform_integration->accessibility()->setActive(active);
    }
};

}  // namespace vorlane::test
