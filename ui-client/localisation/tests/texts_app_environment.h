// A gtest environment for tests of the catalogues: an application object (for
// translators and QProcess) and the resource collection "texts" registered.
#ifndef TEXTS_APP_ENVIRONMENT_H
#define TEXTS_APP_ENVIRONMENT_H

#include "strtable.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

class TextsAppEnvironment : public ::testing::Environment {
public:
    void SetUp() override
    {
        static int argc = 1;
        static char arg0[] = "texts_test";
        static char* argv[] = {arg0, nullptr};
        app_ = new QCoreApplication(argc, argv);
        qInitResources_texts();
    }
    void TearDown() override
    {
        delete app_;
        app_ = nullptr;
    }

private:
    QCoreApplication* app_ = nullptr;
};

#endif
