#include <QGuiApplication>
#include <string_view>

#include <gtest/gtest.h>

#include "paint/AloneWithTheModule.h"

int main(int argc, char** argv) {
    using namespace norlaplan::testing;
    if (argc == 3 && std::string_view(argv[1]) == kSaveAlone) return saveAlone(argv[2]);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
