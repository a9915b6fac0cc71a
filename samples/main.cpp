// vorlane-sample-show FOLDER: brings a folder up to date with the sample show.
#include "samples/show.h"

#include <cstdio>
#include <exception>

#include <QCoreApplication>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: vorlane-sample-show FOLDER\n");
        return 2;
    }
    try {
        const QString folder = QCoreApplication::arguments().at(1);
        if (samples::Refresh(samples::Show(), samples::Version(), folder)) std::printf("Sample show: %s\n", argv[1]);
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "vorlane-sample-show: %s\n", failure.what());
        return 1;
    }
}
