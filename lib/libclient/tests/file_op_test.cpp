#include "file-op.h"

#include <gtest/gtest.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include "log.h"

namespace fs = std::filesystem;

namespace {

// A fresh folder, spelled canonically so that exact checks can match it.
std::string MakeTempDir(const std::string& base)
{
    std::string tmpl = base + "/fileop-XXXXXX";
    if (mkdtemp(&tmpl[0]) == nullptr) {
        return std::string();
    }
    char real[PATH_MAX];
    return realpath(tmpl.c_str(), real) ? real : tmpl;
}

void WriteFile(const std::string& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

std::string LinkTarget(const std::string& path)
{
    std::error_code ec;
    return fs::read_symlink(path, ec).string();
}

bool Exists(const std::string& path)
{
    std::error_code ec;
    return fs::exists(fs::symlink_status(path, ec));
}

bool IsDir(const std::string& path)
{
    std::error_code ec;
    return fs::is_directory(fs::symlink_status(path, ec));
}

mode_t ModeOf(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0 ? (st.st_mode & 07777) : 0;
}

class FileOpTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        dir = MakeTempDir(fs::temp_directory_path().string());
        ASSERT_FALSE(dir.empty());
    }
    void TearDown() override
    {
        std::error_code ec;
        fs::remove_all(dir, ec);
    }
    std::string P(const std::string& rel) const { return dir + "/" + rel; }

    // A file, a folder, a nested file, a valid and a dangling link.
    void MakeTree(const std::string& root)
    {
        fs::create_directories(root + "/sub/empty");
        WriteFile(root + "/a.txt", "alpha");
        WriteFile(root + "/sub/nested.txt", "nested");
        fs::create_symlink("a.txt", root + "/link");
        fs::create_symlink("nowhere", root + "/dangling");
    }
    void ExpectTree(const std::string& root)
    {
        EXPECT_EQ(ReadFile(root + "/a.txt"), "alpha");
        EXPECT_EQ(ReadFile(root + "/sub/nested.txt"), "nested");
        EXPECT_TRUE(IsDir(root + "/sub/empty"));
        EXPECT_EQ(LinkTarget(root + "/link"), "a.txt");
        EXPECT_EQ(LinkTarget(root + "/dangling"), "nowhere");
    }

    std::string dir;
};

TEST_F(FileOpTest, IsFileExistMatchesExactSpellingOnly)
{
    const std::string nfd = "Cafe\xCC\x81", nfc = "Caf\xC3\xA9";
    fs::create_directories(P(nfd));  // a home folder made in decomposed form
    WriteFile(P(nfd + "/f"), "x");
    fs::create_directories(P(nfc));
    WriteFile(P("file"), "x");
    fs::create_symlink(P("file"), P("link"));
    ASSERT_EQ(chdir(dir.c_str()), 0);

    struct Row { const char* name; std::string path; bool plain, exact; } rows[] = {
        {"empty", "", false, false},
        {"file", P("file"), true, true},
        {"folder", dir, true, true},
        {"trailing slash", dir + "/", true, false},
        {"slash dot", dir + "/.", true, false},
        {"relative", "file", true, false},
        {"missing", P("missing"), false, false},
        {"link spells its target", P("link"), true, false},
        {"decomposed folder", P(nfd + "/f"), true, true},
        {"composed spelling of decomposed folder", P(nfc + "/f"), false, false},
        {"decomposed spelling of composed folder", P(nfd), true, true},
    };
    for (const Row& r : rows) {
        EXPECT_EQ(IsFileExist(r.path.c_str(), false), r.plain) << r.name;
        EXPECT_EQ(IsFileExist(r.path.c_str(), true), r.exact) << r.name;
    }
    ASSERT_EQ(chdir("/"), 0);
}

TEST_F(FileOpTest, GetFileInfoDescribesWithoutFollowing)
{
    FILE_INFO info;
    time_t before = time(nullptr);
    ASSERT_EQ(GetFileInfo(P("missing"), info), 0);
    EXPECT_FALSE(info.exist);
    EXPECT_EQ(info.type, FILE_TYPE_REGULAR);
    EXPECT_EQ(info.size, 0);
    EXPECT_GE(info.mtime, before);
    EXPECT_LE(info.mtime, time(nullptr));
    EXPECT_EQ(info.path, ustring(P("missing").c_str()));

    WriteFile(P("file"), "12345");
    struct utimbuf t = {1000000000, 1200000000};
    ASSERT_EQ(utime(P("file").c_str(), &t), 0);
    fs::create_directories(P("sub"));
    ASSERT_EQ(GetFileInfo(P("sub/../file"), info), 0);
    EXPECT_TRUE(info.exist);
    EXPECT_EQ(info.size, 5);
    EXPECT_EQ(info.mtime, 1200000000);
    EXPECT_EQ(info.mode & S_IFMT, static_cast<uint32_t>(S_IFREG));
    EXPECT_EQ(info.path, ustring(P("file").c_str()));  // canonical spelling

    // A link is described itself; its canonical path is that of the target.
    fs::create_symlink("file", P("link"));
    ASSERT_EQ(GetFileInfo(P("link"), info), 0);
    EXPECT_EQ(info.type, FILE_TYPE_LINK);
    EXPECT_EQ(info.size, 4);
    EXPECT_EQ(info.path, ustring(P("file").c_str()));
    fs::create_symlink("nowhere/at/all", P("dangling"));
    ASSERT_EQ(GetFileInfo(P("dangling"), info), 0);
    EXPECT_EQ(info.type, FILE_TYPE_LINK);
    EXPECT_EQ(info.size, 14);
    EXPECT_EQ(info.path, ustring(P("dangling").c_str()));

    ASSERT_EQ(mkfifo(P("fifo").c_str(), 0600), 0);
    ASSERT_EQ(GetFileInfo(P("fifo"), info), 0);
    EXPECT_EQ(info.type, FILE_TYPE_FIFO);
    EXPECT_EQ(GetFileInfo(P("file/below"), info), -1);  // ENOTDIR
}

TEST_F(FileOpTest, StatAndRealPath)
{
    FILE_INFO info;
    info.path = "keep";
    info.size = 7;
    info.mtime = 9;
    info.exist = true;
    EXPECT_EQ(FSStat("", info, false), -1);
    ASSERT_EQ(FSStat(P("missing"), info, false), 0);
    EXPECT_FALSE(info.exist);  // and nothing else changes
    EXPECT_EQ(info.path, ustring("keep"));
    EXPECT_EQ(info.size, 7);
    EXPECT_EQ(info.mtime, 9);

    ustring path = (dir + "/./missing/..").c_str();
    EXPECT_EQ(FSGetRealPath(path), -1);
    EXPECT_EQ(path, ustring((dir + "/./missing/..").c_str()));
    path = (dir + "/.").c_str();
    EXPECT_EQ(FSGetRealPath(path), 0);
    EXPECT_EQ(path, ustring(dir.c_str()));
}

TEST_F(FileOpTest, CopyFileBytes)
{
    // Larger than the 32 MiB buffer, so the copy takes two reads.
    const off_t big = 33554432 + 3;
    {
        int fd = open(P("big").c_str(), O_WRONLY | O_CREAT, 0600);
        ASSERT_GE(fd, 0);
        ASSERT_EQ(pwrite(fd, "end", 3, big - 3), 3);
        close(fd);
    }
    ASSERT_EQ(FSCopy(P("big"), P("big.copy"), false), 0);
    EXPECT_EQ(fs::file_size(P("big.copy")), static_cast<uintmax_t>(big));
    EXPECT_EQ(ReadFile(P("big.copy")).substr(big - 3), "end");

    // An existing destination is truncated and keeps its mode.
    WriteFile(P("src"), "new");
    WriteFile(P("dst"), "much longer old text");
    ASSERT_EQ(chmod(P("dst").c_str(), 0604), 0);
    ASSERT_EQ(FSCopy(P("src"), P("dst"), false), 0);
    EXPECT_EQ(ReadFile(P("dst")), "new");
    EXPECT_EQ(ModeOf(P("dst")), 0604u);

    WriteFile(P("empty"), "");
    ASSERT_EQ(FSCopy(P("empty"), P("empty.copy"), true), 0);
    EXPECT_FALSE(Exists(P("empty")));
    EXPECT_EQ(ReadFile(P("empty.copy")), "");

    EXPECT_EQ(FSCopy(P("missing"), P("never"), false), -1);
    EXPECT_FALSE(Exists(P("never")));
    EXPECT_EQ(FSCopy(P("src"), P("no/such/folder"), false), -1);
}

TEST_F(FileOpTest, CopyOntoFullDeviceIsOutOfSpace)
{
    if (access("/dev/full", W_OK) != 0) {
        GTEST_SKIP() << "/dev/full is not available";
    }
    WriteFile(P("src"), "some bytes");
    EXPECT_EQ(FSCopy(P("src"), "/dev/full", true), -2);
    EXPECT_EQ(ReadFile(P("src")), "some bytes");  // the source stays on failure
}

TEST_F(FileOpTest, CopyFailureIsLoggedWithLineAndCause)
{
    const std::string log = P("file-op.log");
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), "", 50), 0);
    FSCopy(P("missing"), P("never"), false);
    Logger::Destroy();
    const std::string text = ReadFile(log);
    EXPECT_NE(text.find("[ERROR] file-op("), std::string::npos) << text;
    EXPECT_NE(text.find("): CopyFile: open(" + P("missing") + "): " + strerror(ENOENT) + " (2)\n"),
              std::string::npos)
        << text;
}

TEST_F(FileOpTest, RenameResults)
{
    WriteFile(P("src"), "data");
    EXPECT_EQ(FSRename("", P("dst"), false), -1);
    EXPECT_EQ(FSRename(P("src"), "", false), -1);
    EXPECT_EQ(FSRename(P("missing"), P("dst"), false), -2);
    EXPECT_EQ(FSRename(P("src"), P("no/such/dst"), false), -3);
    EXPECT_EQ(FSRename(P("src"), P(std::string(300, 'n')), false), -100);
    ASSERT_EQ(FSRename(P("src"), P("dst"), false), 0);
    EXPECT_FALSE(Exists(P("src")));
    EXPECT_EQ(ReadFile(P("dst")), "data");
}

class CrossDeviceTest : public FileOpTest {
protected:
    void SetUp() override
    {
        FileOpTest::SetUp();
        struct stat a, b;
        if (stat(dir.c_str(), &a) != 0 || stat("/dev/shm", &b) != 0 || a.st_dev == b.st_dev) {
            GTEST_SKIP() << "the temp folder and /dev/shm are not two file systems";
        }
        other = MakeTempDir("/dev/shm");
        ASSERT_FALSE(other.empty());
    }
    void TearDown() override
    {
        std::error_code ec;
        if (!other.empty()) {
            fs::remove_all(other, ec);
        }
        FileOpTest::TearDown();
    }
    std::string other;
};

TEST_F(CrossDeviceTest, MovesFileTreeAndLink)
{
    WriteFile(P("file"), "contents");
    ASSERT_EQ(FSRename(P("file"), other + "/file", false), 0);
    EXPECT_FALSE(Exists(P("file")));
    EXPECT_EQ(ReadFile(other + "/file"), "contents");

    MakeTree(P("tree"));
    ASSERT_EQ(FSRename(P("tree"), other + "/tree", false), 0);
    EXPECT_FALSE(Exists(P("tree")));
    ExpectTree(other + "/tree");

    fs::create_symlink("../some/target", P("alone"));
    ASSERT_EQ(FSRename(P("alone"), other + "/alone", false), 0);
    EXPECT_FALSE(Exists(P("alone")));
    EXPECT_EQ(LinkTarget(other + "/alone"), "../some/target");
}

TEST_F(CrossDeviceTest, RefusesFifo)
{
    ASSERT_EQ(mkfifo(P("fifo").c_str(), 0600), 0);
    EXPECT_EQ(FSRename(P("fifo"), other + "/fifo", false), -3);
    EXPECT_TRUE(Exists(P("fifo")));
    EXPECT_FALSE(Exists(other + "/fifo"));
}

TEST_F(FileOpTest, MakeFolder)
{
    fs::create_directories(P("folder"));
    WriteFile(P("file"), "x");
    fs::create_symlink("folder", P("link"));
    struct Row { const char* name; std::string path; bool parents; int result; bool made; } rows[] = {
        {"empty", "", true, -1, false},
        {"existing folder", P("folder"), false, 0, true},
        {"existing file", P("file"), true, -1, false},
        {"link to a folder", P("link"), true, -1, false},
        {"below a file", P("file/x"), true, -1, false},
        {"missing parent", P("a/b"), false, -2, false},
        {"with parents", P("a/b/c"), true, 0, true},
        {"single", P("one"), false, 0, true},
    };
    for (const Row& r : rows) {
        EXPECT_EQ(FSMKDir(r.path.c_str(), r.parents), r.result) << r.name;
        EXPECT_EQ(IsDir(r.path), r.made) << r.name;
    }
}

TEST_F(FileOpTest, MakeFolderWithParentsReportsErrno)
{
    WriteFile(P("file"), "x");
    const char* end = nullptr;
    ustring path = P("file/x/y").c_str();
    errno = 0;
    EXPECT_EQ(FSMKDirP(path, &end, false, 0xFFFF), -1);
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_EQ(std::string(end), "/x/y");
    EXPECT_EQ(end, path.c_str() + dir.size() + 5);

    ustring self = P("file").c_str();
    EXPECT_EQ(FSMKDirP(self, nullptr, false, 0xFFFF), -1);
    EXPECT_EQ(errno, EEXIST);

    ASSERT_EQ(FSMKDirP(path, &end, true, 0xFFFF), 0);
    EXPECT_TRUE(IsDir(P("file/x/y")));
    EXPECT_EQ(*end, '\0');
    WriteFile(P("leaf"), "x");
    ustring trailing = P("leaf/").c_str();
    ASSERT_EQ(FSMKDirP(trailing, &end, true, 0xFFFF), 0);
    EXPECT_TRUE(IsDir(P("leaf")));
    EXPECT_EQ(std::string(end), "/");

    mode_t old = umask(077);
    EXPECT_EQ(FSMKDirP(P("m/n").c_str(), nullptr, false, 0775), 0);
    EXPECT_EQ(umask(old), 077u);  // restored after the call
    EXPECT_EQ(ModeOf(P("m")), 0775u);
    EXPECT_EQ(ModeOf(P("m/n")), 0775u);
    old = umask(077);
    EXPECT_EQ(FSMKDirP(P("u").c_str(), nullptr, false, 0xFFFF), 0);
    umask(old);
    EXPECT_EQ(ModeOf(P("u")), 0700u);
    EXPECT_EQ(FSMKDirP("", nullptr, false, 0xFFFF), -1);
}

TEST_F(FileOpTest, CreatedFoldersTakeConfiguredOwner)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "giving a folder to another user needs root";
    }
    FSInitialize(12345, UINT32_MAX);
    int result = FSMKDir(P("owned/deep"), true);
    FSInitialize(UINT32_MAX, UINT32_MAX);
    ASSERT_EQ(result, 0);
    for (const char* rel : {"owned", "owned/deep"}) {
        struct stat st;
        ASSERT_EQ(stat(P(rel).c_str(), &st), 0);
        EXPECT_EQ(st.st_uid, 12345u) << rel;
        EXPECT_EQ(st.st_gid, getegid()) << rel;
    }
}

TEST_F(FileOpTest, RemoveTreeNeverFollowsLinks)
{
    EXPECT_EQ(FSRemove("", false), -1);
    EXPECT_EQ(FSRemove(P("missing"), false), 0);

    fs::create_directories(P("outside/folder"));
    WriteFile(P("outside/file"), "keep");
    MakeTree(P("tree"));
    fs::create_symlink(P("outside/folder"), P("tree/sub/folder-link"));
    fs::create_symlink(P("outside/file"), P("tree/file-link"));
    ASSERT_EQ(FSRemove(P("tree"), false), 0);
    EXPECT_FALSE(Exists(P("tree")));
    EXPECT_EQ(ReadFile(P("outside/file")), "keep");
    EXPECT_TRUE(IsDir(P("outside/folder")));
}

TEST_F(FileOpTest, RemoveReportsFolderThatCannotBeOpened)
{
    // No descriptor left for opendir: a failure that root cannot bypass.
    MakeTree(P("tree"));
    struct rlimit saved;
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &saved), 0);
    int lowest = dup(0);
    ASSERT_GE(lowest, 0);
    close(lowest);
    for (int spare : {0, 1}) {
        struct rlimit tight = saved;
        tight.rlim_cur = static_cast<rlim_t>(lowest + spare);
        ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &tight), 0);
        int result = FSRemove(P("tree"), false);
        ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &saved), 0);
        EXPECT_EQ(result, -3) << "spare descriptors: " << spare;
        EXPECT_TRUE(IsDir(P("tree/sub/empty"))) << "spare descriptors: " << spare;
    }
}

TEST_F(FileOpTest, ReadFolderWithAndWithoutStatus)
{
    WriteFile(P("file"), "12345");
    struct utimbuf t = {1000000000, 1100000000};
    ASSERT_EQ(utime(P("file").c_str(), &t), 0);
    fs::create_directories(P("sub"));
    fs::create_symlink("file", P("link"));
    struct stat self;
    ASSERT_EQ(stat(dir.c_str(), &self), 0);

    DIR_HANDLE h;
    h.flags = 77;
    EXPECT_EQ(FSOpenDir(P("missing"), 0, h), -1);
    EXPECT_EQ(h.flags, 77);
    EXPECT_EQ(h.dir, nullptr);

    for (int flags : {0, FS_DIR_WITH_STAT}) {
        ASSERT_EQ(FSOpenDir(dir.c_str(), flags, h), 0);
        std::set<std::string> names;
        DIR_ENTRY e;
        int r;
        while ((r = FSReadDir(h, e)) == 1) {
            const std::string name = e.name.c_str();
            names.insert(name);
            const bool dot = name == "." || name == "..";
            const int type = name == "link" ? FILE_TYPE_LINK
                             : name == "file" ? FILE_TYPE_REGULAR
                                              : FILE_TYPE_DIR;
            EXPECT_EQ(e.type, type) << name;
            if (!flags) {
                EXPECT_EQ(e.mtime, 0) << name;
                EXPECT_EQ(e.size, 0) << name;
            } else if (dot) {  // the listed folder's own status
                EXPECT_EQ(e.mtime, self.st_mtime) << name;
                EXPECT_EQ(e.size, self.st_size) << name;
            } else if (name == "file") {
                EXPECT_EQ(e.mtime, 1100000000) << name;
                EXPECT_EQ(e.size, 5) << name;
            }
        }
        EXPECT_EQ(r, 0);
        EXPECT_EQ(names, (std::set<std::string>{".", "..", "file", "sub", "link"}));
        FSCloseDir(h);
        EXPECT_EQ(h.dir, nullptr);
        EXPECT_TRUE(h.path.empty());
        EXPECT_EQ(h.flags, flags);
    }
}

TEST_F(FileOpTest, TemporaryFilesAndNames)
{
    ustring out;
    ASSERT_EQ(FSMktemp(dir.c_str(), out), 0);
    EXPECT_EQ(std::string(out.c_str()).rfind(dir + "/", 0), 0u);
    EXPECT_EQ(fs::file_size(out.c_str()), 0u);
    EXPECT_EQ(ModeOf(out.c_str()), 0644u);
    EXPECT_EQ(FSMktemp(P("missing").c_str(), out), -1);

    ASSERT_EQ(FSCreateTempPath(dir.c_str(), out), 0);
    EXPECT_EQ(out.length(), dir.size() + 9);
    EXPECT_FALSE(Exists(out.c_str()));  // a name only
}

}  // namespace
