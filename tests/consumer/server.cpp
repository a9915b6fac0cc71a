// A sheet without a screen: the core on the headless desktop.
#include "platform/headless/window.h"
#include "sheet/vorlane.h"

#include <iostream>

int main() {
    vorlane::headless::Desktop desktop;
    desktop.pictures.Add("/photos/a.jpg", 60, 40);
    vorlane::headless::Window window(desktop, {0, 0, 640, 480});
    vorlane::Vorlane sheet(desktop.Roles(), window.Ambient());
    window.Host(sheet);

    int failures = 0;
    sheet.Events.Error.connect([&](auto, const std::string& description, const auto&, auto, const auto&) {
        std::cerr << description << '\n';
        ++failures;
    });
    sheet.Add("/photos/a.jpg", "");
    sheet.StartLecture();
    std::cout << "slide 0 shows " << sheet.Diapo.Item(0)->ImageFullPath() << '\n';

    // A failure that the library throws is caught here as the very type.
    try {
        sheet.SetBorderSize(1000);
    } catch (const vorlane::Failure& failure) {
        return sheet.Diapo.Item(0)->ImageFullPath() == "/photos/a.jpg" ? failures : 1;
    }
    std::cerr << "the size of a border was not refused\n";
    return 1;
}
