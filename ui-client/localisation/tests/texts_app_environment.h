// A gtest environment for tests of the catalogues: an application object (for
// translators and QProcess), the resource collection "texts" registered and
// the string table filled.
#ifndef TEXTS_APP_ENVIRONMENT_H
#define TEXTS_APP_ENVIRONMENT_H

#include "strtable.h"

#include <gtest/gtest.h>

#include <memory>

#include <QCoreApplication>

class TextsAppEnvironment : public ::testing::Environment {
public:
    void SetUp() override
    {
        app_ = std::make_unique<QCoreApplication>(argc_, argv_);
        qInitResources_texts();
        StrTable::InitStrTable();
    }
    void TearDown() override { app_.reset(); }

private:
    int argc_ = 1;
    char arg0_[11] = "texts_test";
    char* argv_[2] = {arg0_, nullptr};
    std::unique_ptr<QCoreApplication> app_;
};

#endif
