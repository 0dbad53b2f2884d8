#include <QCoreApplication>

#include <gtest/gtest.h>

#include "toolkit/forms/application.h"

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    kaldo::Application application(argc, argv);
    return RUN_ALL_TESTS();
}
