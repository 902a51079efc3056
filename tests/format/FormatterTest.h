#pragma once

#include "format/UnitsKeys.h"
#include "platform/Defaults.h"

#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ridelog {

/// Formatters in an English locale, for a user who reads kilometres until told otherwise.
class FormatterTest : public testing::Test {
protected:
    void SetUp() override { QLocale::setDefault(QLocale(QLocale::English)); }
    void TearDown() override { QLocale::setDefault(before); }

    void useMiles(bool miles) { defaults.setValue(UnitsKeys::useMiles, miles); }

    QLocale before;
    QTemporaryDir folder;
    Defaults defaults{folder.filePath(QStringLiteral("ridelog.ini"))};
};

} // namespace ridelog
