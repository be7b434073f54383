// The packer run as the build runs it, its packages read back with libarchive,
// and the demo bundle that the build assembled.
#include <sys/stat.h>

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include "test_files_qt.h"

namespace {

struct Package {
    int format = 0;
    int filter = 0;
    std::vector<std::string> names;
    mode_t client_mode = 0;
    std::string info;
};

Package ReadBack(const QString& path)
{
    Package package;
    archive* a = archive_read_new();
    archive_read_support_filter_all(a);
    archive_read_support_format_all(a);
    EXPECT_EQ(ARCHIVE_OK, archive_read_open_filename(a, QFile::encodeName(path).constData(), 10240));
    archive_entry* entry;
    while (archive_read_next_header(a, &entry) == ARCHIVE_OK) {
        const std::string name = archive_entry_pathname(entry);
        package.names.push_back(name);
        if (name == "Contents/MacOS/drift-ui")
            package.client_mode = archive_entry_perm(entry);
        if (name == "Contents/Resources/INFO") {
            package.info.resize(archive_entry_size(entry));
            archive_read_data(a, package.info.data(), package.info.size());
        }
    }
    package.format = archive_format(a) & ARCHIVE_FORMAT_BASE_MASK;
    package.filter = archive_filter_code(a, 0);
    archive_read_free(a);
    return package;
}

TEST(MakePackage, WritesSortedEntriesWithTheVersionRecordLastAndTheSameBytesEachTime)
{
    // A per-user bundle whose sorted order would not put INFO last, with a link
    // that must stay a link.
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString root = dir.path() + "/root";
    ASSERT_TRUE(dwtest::WriteFile(root + "/Contents/MacOS/drift-ui", "#!/bin/sh\n", 0755));
    ASSERT_TRUE(dwtest::WriteFile(root + "/Contents/Resources/INFO", "[Version]\nbuild_version=7\n"));
    ASSERT_TRUE(dwtest::WriteFile(root + "/Contents/Resources/images/icon.png", QByteArray(3000, 'x')));
    ASSERT_TRUE(QFile::link("images", root + "/Contents/Resources/current"));

    const struct {
        const char* format;
        int archive_format;
        int filter;
    } rows[] = {
        {"tar", ARCHIVE_FORMAT_TAR, ARCHIVE_FILTER_NONE},
        {"tar.gz", ARCHIVE_FORMAT_TAR, ARCHIVE_FILTER_GZIP},
        {"tar.zst", ARCHIVE_FORMAT_TAR, ARCHIVE_FILTER_ZSTD},
        {"zip", ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.format);
        const QString first = dir.path() + "/first." + row.format;
        const QString second = dir.path() + "/second." + row.format;
        ASSERT_EQ(0, QProcess::execute(MAKE_PACKAGE_EXE, {row.format, first, root}));
        ASSERT_EQ(0, QProcess::execute(MAKE_PACKAGE_EXE, {row.format, second, root}));
        EXPECT_EQ(dwtest::ReadFile(first), dwtest::ReadFile(second));

        const Package package = ReadBack(first);
        EXPECT_EQ(row.archive_format, package.format);
        EXPECT_EQ(row.filter, package.filter);
        // Sorted, so a folder comes before its contents; the link packed as a
        // link; INFO moved to the end.
        ASSERT_EQ(8u, package.names.size());
        EXPECT_TRUE(std::is_sorted(package.names.begin(), package.names.end() - 1));
        EXPECT_EQ("Contents/Resources/INFO", package.names.back());
        EXPECT_EQ(0755u, package.client_mode);
        EXPECT_EQ("[Version]\nbuild_version=7\n", package.info);
    }
    // A folder in the way of the partial package: no package is claimed.
    ASSERT_TRUE(QDir().mkpath(dir.path() + "/p.tar.part"));
    EXPECT_NE(0, QProcess::execute(MAKE_PACKAGE_EXE, {"tar", dir.path() + "/p.tar", root}));
}

// What the launcher reads from its bundle, and a package whose record equals
// the bundle's, so that the launch after an installation upgrades nothing.
TEST(DemoBundle, CarriesWhatTheLauncherReads)
{
    const QString resources = DW_BUNDLE_DIR "/Contents/Resources";
    EXPECT_EQ(QSize(72, 72), QImage(resources + "/images/ico_72_driftwell.png").size());
    const QSettings info(resources + "/INFO", QSettings::IniFormat);
    EXPECT_GT(info.value("Version/build_version").toInt(), 0);
    EXPECT_FALSE(QDir(DW_BUNDLE_DIR "/Contents/Frameworks/plugins/platforms").isEmpty());

    const Package package = ReadBack(resources + "/package/driftwell.tpk");
    ASSERT_FALSE(package.names.empty());
    EXPECT_EQ("Contents/Resources/INFO", package.names.back());
    EXPECT_EQ(dwtest::ReadFile(resources + "/INFO").toStdString(), package.info);
    EXPECT_TRUE(package.client_mode & S_IXUSR);
}

}  // namespace
