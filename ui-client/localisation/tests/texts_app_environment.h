// A gtest environment for tests of the catalogues: an application object (for
// translators and QProcess), the resource collection "texts" registered and
// the string table filled.
#ifndef DW_UI_CLIENT_LOCALISATION_TESTS_TEXTS_APP_ENVIRONMENT_H
#define DW_UI_CLIENT_LOCALISATION_TESTS_TEXTS_APP_ENVIRONMENT_H

#include "strtable.h"

#include <gtest/gtest.h>

#include <memory>

#include <QCoreApplication>
#include <QTranslator>

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

// Installs a translator for the lifetime of the scope.
class ScopedTranslator {
public:
    explicit ScopedTranslator(QTranslator* t) : t_(t) { QCoreApplication::installTranslator(t_); }
    ~ScopedTranslator() { QCoreApplication::removeTranslator(t_); }
    ScopedTranslator(const ScopedTranslator&) = delete;
    ScopedTranslator& operator=(const ScopedTranslator&) = delete;

private:
    QTranslator* t_;
};

#endif
