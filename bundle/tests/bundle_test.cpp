// The packer run as the build runs it, its packages read back with libarchive,
// and the demo bundle that the build assembled.
#include <sys/stat.h>
#include <unistd.h>

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

namespace {

bool WriteFile(const QString& path, const QByteArray& data)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(data) == data.size();
}

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int Pack(const QString& format, const QString& output, const QString& root)
{
    return QProcess::execute(MAKE_PACKAGE_EXE, {format, output, root});
}

// A per-user bundle whose sorted order would not put INFO last.
void StageBundle(const QString& root)
{
    ASSERT_TRUE(WriteFile(root + "/Contents/MacOS/drift-ui", "#!/bin/sh\n"));
    ASSERT_EQ(0, chmod(QFile::encodeName(root + "/Contents/MacOS/drift-ui").constData(), 0755));
    ASSERT_TRUE(WriteFile(root + "/Contents/Resources/INFO", "[Version]\nbuild_version=7\n"));
    ASSERT_TRUE(WriteFile(root + "/Contents/Resources/images/icon.png", QByteArray(3000, 'x')));
    ASSERT_TRUE(QFile::link("images", root + "/Contents/Resources/current"));
}

struct Read {
    int format = 0;
    int filter = 0;
    std::vector<std::string> names;
    std::string link_target;
    mode_t client_mode = 0;
    std::string info;
};

Read ReadBack(const QString& package)
{
    Read read;
    archive* a = archive_read_new();
    archive_read_support_filter_all(a);
    archive_read_support_format_all(a);
    EXPECT_EQ(ARCHIVE_OK, archive_read_open_filename(a, QFile::encodeName(package).constData(), 10240));
    archive_entry* entry;
    while (archive_read_next_header(a, &entry) == ARCHIVE_OK) {
        std::string name = archive_entry_pathname(entry);
        if (!name.empty() && name.back() == '/')
            name.pop_back();
        read.names.push_back(name);
        if (archive_entry_filetype(entry) == AE_IFLNK)
            read.link_target = archive_entry_symlink(entry);
        if (name == "Contents/MacOS/drift-ui")
            read.client_mode = archive_entry_perm(entry);
        if (name == "Contents/Resources/INFO") {
            read.info.resize(archive_entry_size(entry));
            archive_read_data(a, read.info.data(), read.info.size());
        }
    }
    read.format = archive_format(a) & ARCHIVE_FORMAT_BASE_MASK;
    read.filter = archive_filter_code(a, 0);
    archive_read_free(a);
    return read;
}

struct FormatCase {
    const char* name;
    const char* format;
    int archive_format;
    int filter;
};

// A fresh temporary folder with a staged per-user bundle in it.
class MakePackage : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        StageBundle(root);
    }
    QTemporaryDir dir;
    const QString root = dir.path() + "/root";
    const QString package = dir.path() + "/driftwell.tpk";
};

class MakePackageFormat : public MakePackage, public ::testing::WithParamInterface<FormatCase> {};

TEST_P(MakePackageFormat, WritesSortedEntriesWithTheVersionRecordLast)
{
    ASSERT_EQ(0, Pack(GetParam().format, package, root));

    const Read read = ReadBack(package);
    EXPECT_EQ(GetParam().archive_format, read.format);
    EXPECT_EQ(GetParam().filter, read.filter);
    const std::vector<std::string> expected = {
        "Contents",
        "Contents/MacOS",
        "Contents/MacOS/drift-ui",
        "Contents/Resources",
        "Contents/Resources/current",
        "Contents/Resources/images",
        "Contents/Resources/images/icon.png",
        "Contents/Resources/INFO",
    };
    EXPECT_EQ(expected, read.names);
    EXPECT_EQ("images", read.link_target);
    EXPECT_EQ(0755u, read.client_mode);
    EXPECT_EQ("[Version]\nbuild_version=7\n", read.info);

    // The same input gives the same bytes.
    const QString again = dir.path() + "/again.tpk";
    ASSERT_EQ(0, Pack(GetParam().format, again, root));
    EXPECT_EQ(ReadFile(package), ReadFile(again));
}

INSTANTIATE_TEST_SUITE_P(
    Formats, MakePackageFormat,
    ::testing::Values(FormatCase{"Tar", "tar", ARCHIVE_FORMAT_TAR, ARCHIVE_FILTER_NONE},
                      FormatCase{"TarGz", "tar.gz", ARCHIVE_FORMAT_TAR, ARCHIVE_FILTER_GZIP},
                      FormatCase{"TarZst", "tar.zst", ARCHIVE_FORMAT_TAR, ARCHIVE_FILTER_ZSTD},
                      FormatCase{"Zip", "zip", ARCHIVE_FORMAT_ZIP, ARCHIVE_FILTER_NONE}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(MakePackage, LeavesNoPackageWhenItCannotPack)
{
    EXPECT_EQ(1, Pack("rar", package, root));
    ASSERT_TRUE(QFile::remove(root + "/Contents/Resources/INFO"));
    EXPECT_EQ(2, Pack("tar", package, root));
    EXPECT_EQ(QStringList{"root"}, QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot));
}

// What the launcher reads from its bundle, and a package whose record equals
// the bundle's, so that the launch after an installation upgrades nothing.
TEST(DemoBundle, CarriesWhatTheLauncherReads)
{
    const QString resources = DW_BUNDLE_DIR "/Contents/Resources";
    EXPECT_EQ(QSize(72, 72), QImage(resources + "/images/ico_72_driftwell.png").size());
    QSettings info(resources + "/INFO", QSettings::IniFormat);
    EXPECT_GT(info.value("Version/build_version").toInt(), 0);
    EXPECT_FALSE(QDir(DW_BUNDLE_DIR "/Contents/Frameworks/plugins/platforms").isEmpty());

    const Read package = ReadBack(resources + "/package/driftwell.tpk");
    ASSERT_FALSE(package.names.empty());
    EXPECT_EQ("Contents/Resources/INFO", package.names.back());
    EXPECT_EQ(ReadFile(resources + "/INFO").toStdString(), package.info);
    EXPECT_TRUE(package.client_mode & S_IXUSR);
}

}  // namespace
