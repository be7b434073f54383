#include "file-op.h"
#include "log.h"
#include "test_files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utime.h>
#include <atomic>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <thread>
#include <tuple>

namespace fs = std::filesystem;

namespace {

using dwtest::Exists;
using dwtest::ReadFile;
using dwtest::WriteFile;

// Links are described, not followed.
const auto IsDir = [](const std::string& path) { return fs::is_directory(fs::symlink_status(path)); };
const auto ModeOf = [](const std::string& path) { return mode_t(fs::symlink_status(path).permissions()); };

class FileOpTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(tmp_.ok()); }
    std::string P(const std::string& rel) const { return dir + "/" + rel; }

    // A file, a folder, a nested file, a valid and a dangling link.
    static void MakeTree(const std::string& root)
    {
        fs::create_directories(root + "/sub/empty");
        WriteFile(root + "/a.txt", "alpha");
        WriteFile(root + "/sub/nested.txt", "nested");
        fs::create_symlink("a.txt", root + "/link");
        fs::create_symlink("nowhere", root + "/dangling");
    }

    dwtest::TempDir tmp_;
    const std::string dir = tmp_.path();  // spelled canonically so that exact checks can match it
};

TEST_F(FileOpTest, IsFileExistMatchesExactSpellingOnly)
{
    const std::string nfd = "Cafe\xCC\x81", nfc = "Caf\xC3\xA9";
    fs::create_directories(P(nfd));  // a home folder made in decomposed form
    WriteFile(P(nfd + "/f"), "x");
    WriteFile(P("file"), "x");
    fs::create_symlink(P("file"), P("link"));
    ASSERT_EQ(chdir(dir.c_str()), 0);

    using Row = std::tuple<const char*, std::string, bool, bool>;  // name, path, plain, exact
    const Row rows[] = {
        {"folder", dir, true, true},
        {"trailing slash", dir + "/", true, false},
        {"slash dot", dir + "/.", true, false},
        {"relative", "file", true, false},
        {"link spells its target", P("link"), true, false},
        {"decomposed folder", P(nfd + "/f"), true, true},
        {"composed spelling of decomposed folder", P(nfc + "/f"), false, false},
    };
    for (const auto& [name, path, plain, exact] : rows) {
        EXPECT_EQ(IsFileExist(path.c_str(), false), plain) << name;
        EXPECT_EQ(IsFileExist(path.c_str(), true), exact) << name;
    }
    ASSERT_EQ(chdir("/"), 0);
}

TEST_F(FileOpTest, RealPathSpellsExistingObjectsAbsolutelyAndLeavesOtherPathsAlone)
{
    fs::create_directories(P("sub"));
    fs::create_symlink("sub", P("link"));
    WriteFile(P("sub/file"), "x");
    ASSERT_EQ(mkfifo(P("fifo").c_str(), 0600), 0);
    ASSERT_EQ(chdir(P("sub").c_str()), 0);
    using Row = std::tuple<const char*, std::string, std::string>;  // name, path, real path
    const Row rows[] = {
        // real path empty: fails, the path unchanged
        {"dots and a link", dir + "/./link/../link", P("sub")},
        {"relative", "../link/file", P("sub/file")},
        {"fifo, never opened for reading", P("fifo"), P("fifo")},
        {"missing", P("missing"), ""},
        {"empty", "", ""},
        {"file taken for a folder", P("sub/file/"), ""},
    };
    for (const auto& [name, given, real] : rows) {
        ustring path = given.c_str();
        EXPECT_EQ(FSGetRealPath(path), real.empty() ? kFSFailed : kFSOk) << name;
        EXPECT_EQ(path, ustring((real.empty() ? given : real).c_str())) << name;
    }
    ASSERT_EQ(chdir("/"), 0);
}

TEST_F(FileOpTest, GetFileInfoDescribesMissingPathsAndLinksThemselves)
{
    FILE_INFO info;
    const time_t before = time(nullptr);
    ASSERT_EQ(GetFileInfo(P("missing"), info), kFSOk);
    EXPECT_FALSE(info.exist);
    EXPECT_EQ(info.type, FILE_TYPE_REGULAR);
    EXPECT_EQ(info.size, 0);
    EXPECT_GE(info.mtime, before);
    EXPECT_LE(info.mtime, time(nullptr));

    // A link's canonical path is that of its target; a dangling one keeps its own.
    WriteFile(P("file"), "12345");
    fs::create_symlink("file", P("link"));
    fs::create_symlink("nowhere/at/all", P("dangling"));
    for (auto [name, size, path] : {std::tuple{"link", 4, "file"}, {"dangling", 14, "dangling"}}) {
        ASSERT_EQ(GetFileInfo(P(name), info), kFSOk) << name;
        EXPECT_EQ(info.type, FILE_TYPE_LINK) << name;
        EXPECT_EQ(info.size, size) << name;
        EXPECT_EQ(info.path, ustring(P(path).c_str())) << name;
    }
    EXPECT_FALSE(IsMSDOS(P("file").c_str()));  // no FAT volume here
}

TEST_F(FileOpTest, CopyHandlesLargeAndEmptyFilesAndReportsAFullDevice)
{
    // Larger than the 32 MiB buffer, so the copy takes two reads.
    const off_t big = 33554432 + 3;
    ASSERT_TRUE(WriteFile(P("big"), std::string(big - 3, '\0') + "end"));
    ASSERT_EQ(FSCopy(P("big"), P("big.copy"), false), kFSOk);
    EXPECT_EQ(ReadFile(P("big.copy")).substr(big - 4), std::string(1, '\0') + "end");

    WriteFile(P("empty"), "");
    WriteFile(P("dst"), "old text");
    ASSERT_EQ(FSCopy(P("empty"), P("dst"), true), kFSOk);
    EXPECT_FALSE(Exists(P("empty")));
    EXPECT_EQ(ReadFile(P("dst")), "");

    if (access("/dev/full", W_OK) != 0) {
        GTEST_SKIP() << "/dev/full is not available";
    }
    EXPECT_EQ(FSCopy(P("big"), "/dev/full", true), kFSCopyNoSpace);
    EXPECT_TRUE(Exists(P("big")));  // the source stays on failure

    // Also when the error line is the one that rotates the log (at 1 MiB):
    // the rotation's own calls must not decide the result.
    const std::string log = P("log");
    ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), "", 2), 0);
    while (fs::file_size(log) < (1 << 20) - 50)
        Logger::LogMsg(Logger::LOG_ERROR, "file_op_debug", "%s\n", "twenty bytes of text");
    const int result = FSCopy(P("big"), "/dev/full", false);
    Logger::Initialize(Logger::LOG_TYPE_STDERR, "", "", 2);
    EXPECT_EQ(result, kFSCopyNoSpace);
    EXPECT_TRUE(Exists(log + "_0")) << "the error line did not rotate the log";
}

// Every write succeeds into the cache of an ext4 volume whose backing file
// lies on a tmpfs too small for it: only the flush finds out that the data
// cannot be stored. Needs root and a loop device; the mounts are made in a
// mount namespace of this process's own.
TEST_F(FileOpTest, MoveKeepsTheSourceWhenTheFlushFails)
{
    if (geteuid() != 0 || access("/dev/loop-control", W_OK) != 0 ||
        system("command -v mkfs.ext4 >/dev/null") != 0) {
        GTEST_SKIP() << "needs root, a loop device and mkfs.ext4";
    }
    const std::string backing = P("backing"), volume = P("volume");
    fs::create_directories(backing);
    fs::create_directories(volume);
    WriteFile(P("copied"), std::string(8 << 20, 'x'));
    WriteFile(P("moved"), std::string(8 << 20, 'x'));
    const std::string setup = "truncate -s 32M " + backing + "/image && mkfs.ext4 -q -N 64 -O ^has_journal " +
                              backing + "/image && mount -o loop " + backing + "/image " + volume;
    // A chroot or a container may refuse the loop mount although the tools are there.
    if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", backing.c_str(), "tmpfs", 0, "size=2m") != 0 || system(setup.c_str()) != 0) {
        GTEST_SKIP() << "the loop-mounted volume could not be set up here";
    }
    EXPECT_EQ(FSCopy(P("copied"), volume + "/copied", true), kFSCopyNoSpace);
    EXPECT_TRUE(Exists(P("copied")));
    EXPECT_EQ(FSRename(P("moved"), volume + "/moved", false), kFSRenameFailed);
    EXPECT_TRUE(Exists(P("moved")));
    EXPECT_EQ(umount(volume.c_str()), 0);
    EXPECT_EQ(umount(backing.c_str()), 0);
}

TEST_F(FileOpTest, MoveAcrossFileSystemsCopiesFilesTreesAndLinksButNotFifos)
{
    struct stat a, b;
    if (stat(dir.c_str(), &a) != 0 || stat("/dev/shm", &b) != 0 || a.st_dev == b.st_dev) {
        GTEST_SKIP() << "the temp folder and /dev/shm are not two file systems";
    }
    const dwtest::TempDir shm("/dev/shm");
    const std::string& other = shm.path();
    ASSERT_TRUE(shm.ok());
    WriteFile(P("file"), "contents");
    MakeTree(P("tree"));
    fs::create_symlink("../some/target", P("alone"));
    const dwtest::Tree expected = dwtest::Snapshot(dir);
    ASSERT_EQ(mkfifo(P("fifo").c_str(), 0600), 0);
    ASSERT_EQ(chmod(P("file").c_str(), 0600) | chmod(P("tree/sub").c_str(), 0700), 0);

    const mode_t mask = umask(022);
    for (const char* name : {"file", "tree", "alone"}) {
        EXPECT_EQ(FSRename(P(name), other + "/" + name, false), kFSOk) << name;
        EXPECT_FALSE(Exists(P(name))) << name;
    }
    umask(mask);
    // Mode bits are not carried over: what is made anew gets the umask.
    EXPECT_EQ(ModeOf(other + "/file"), 0644u);
    EXPECT_EQ(ModeOf(other + "/tree/sub"), 0755u);
    EXPECT_EQ(FSRename(P("fifo"), other + "/fifo", false), kFSRenameFailed);
    EXPECT_TRUE(Exists(P("fifo")));
    // All of it, links as they were, and no fifo.
    EXPECT_EQ(dwtest::Snapshot(other), expected);
}

TEST_F(FileOpTest, MakeFolderAcceptsOnlyRealFoldersAndWithParentsReportsErrnoOrForcesItsWay)
{
    fs::create_directories(P("folder"));
    WriteFile(P("file"), "x");
    fs::create_symlink("folder", P("link"));
    using Row = std::tuple<const char*, std::string, bool, int, bool>;  // name, path, parents, result, made
    const Row rows[] = {
        {"existing folder", P("folder"), false, kFSOk, true},
        {"existing file", P("file"), true, kFSMKDirBadPath, false},
        {"link to a folder", P("link"), true, kFSMKDirBadPath, false},
        {"missing parent", P("a/b"), false, kFSMKDirCreateFailed, false},
        {"with parents", P("a/b/c"), true, kFSOk, true},
        {"single", P("one"), false, kFSOk, true},
    };
    for (const auto& [name, path, parents, result, made] : rows) {
        EXPECT_EQ(FSMKDir(path.c_str(), parents), result) << name;
        EXPECT_EQ(IsDir(path), made) << name;
    }

    const char* end = nullptr;
    ustring path = P("file/x/y").c_str();
    EXPECT_EQ(FSMKDirP(path, &end, false, kFSNoMode), kFSFailed);
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_EQ(end, path.c_str() + dir.size() + 5);  // just after "file"
    EXPECT_EQ(FSMKDirP(P("file").c_str(), nullptr, false, kFSNoMode), kFSFailed);
    EXPECT_EQ(errno, EEXIST);
    fs::create_symlink("nowhere", P("dangling"));  // followed, so force cannot help
    EXPECT_EQ(FSMKDirP(P("dangling/x").c_str(), nullptr, true, kFSNoMode), kFSFailed);
    EXPECT_EQ(errno, EEXIST);

    ASSERT_EQ(FSMKDirP(path, &end, true, kFSNoMode), kFSOk);
    EXPECT_TRUE(IsDir(P("file/x/y")));
    EXPECT_EQ(*end, '\0');
}

// The umask belongs to the whole process: while folders of an exact mode are
// made, files that another thread creates still get the umask applied. The
// calls go on until 20 files were created wholly inside one.
TEST_F(FileOpTest, MakeFolderWithModeLeavesTheUmaskAlone)
{
    const mode_t old = umask(077);
    std::atomic<int> calls{0}, inside{0};  // calls is odd during a call
    std::atomic<bool> done{false};
    std::set<mode_t> created;
    std::thread creator([&] {
        const std::string file = P("created");
        while (!done) {
            const int before = calls;
            const int fd = open(file.c_str(), O_CREAT | O_EXCL | O_WRONLY, 0666);
            if (fd >= 0)
                created.insert(ModeOf(file));
            close(fd);
            unlink(file.c_str());
            inside += before % 2 == 1 && calls == before;
        }
    });
    for (int round = 0; inside < 20 && round < 20000; ++round) {
        const mode_t mode = round % 2 ? 0775 : 01750;
        const std::string top = P("m" + std::to_string(round)), leaf = top + "/d/d/d/d/d/d/d/d/d/d/d/d";
        const ustring path = leaf.c_str();
        ++calls;
        const int result = FSMKDirP(path, nullptr, false, mode);
        ++calls;
        EXPECT_EQ(result, kFSOk);
        EXPECT_EQ(ModeOf(top), mode);
        EXPECT_EQ(ModeOf(leaf), mode);
    }
    done = true;
    creator.join();
    EXPECT_EQ(umask(old), 077u);
    EXPECT_GE(inside, 20);
    EXPECT_EQ(created, std::set<mode_t>{0600});
}

TEST_F(FileOpTest, RemoveTreeNeverFollowsLinksAndNamesEachEntrysSpellingOnlyInItsDebugLines)
{
    EXPECT_EQ(FSRemove(P("missing"), false), kFSOk);
    fs::create_directories(P("outside/folder"));
    WriteFile(P("outside/file"), "keep");
    // Through a link, so that the canonical spelling differs from the one given.
    fs::create_symlink(dir, P("via"));
    const std::string log = P("file-op.log");
    const std::string levels = P("levels");
    for (const char* level : {"4", "7"}) {
        MakeTree(P("tree"));
        fs::create_symlink(P("outside/folder"), P("tree/sub/folder-link"));
        fs::create_symlink(P("outside/file"), P("tree/file-link"));
        WriteFile(levels, std::string("file_op_debug = ") + level + "\n");
        ASSERT_EQ(Logger::Initialize(Logger::LOG_TYPE_FILE, log.c_str(), levels.c_str(), 2), 0);
        ASSERT_EQ(FSRemove(P("via/tree"), false), kFSOk);
        Logger::Initialize(Logger::LOG_TYPE_STDERR, "", "", 2);
        EXPECT_FALSE(Exists(P("tree"))) << "level " << level;
        EXPECT_EQ(ReadFile(P("outside/file")), "keep");
        EXPECT_TRUE(IsDir(P("outside/folder")));
        const std::string text = ReadFile(log);
        const bool debug = level[0] == '7';
        for (const char* entry : {"", "/a.txt", "/sub", "/sub/nested.txt", "/sub/empty"}) {
            const std::string line = "get full path [" + P("tree") + entry + "]";
            EXPECT_EQ(text.find(line) != std::string::npos, debug) << line << " at level " << level;
        }
        EXPECT_EQ(text.find("org path [" + P("via/tree/a.txt") + "]") != std::string::npos, debug);
        remove(log.c_str());
    }
    Logger::log_level.erase("file_op_debug");
}

TEST_F(FileOpTest, RemoveNeverFollowsAFolderSwappedForALinkBeforeItIsOpened)
{
    // An entry's debug lines come after it was found to be a folder and before
    // it is opened: a log stream of our own swaps it for a link right there.
    WriteFile(P("outside/keep"), "keep");
    struct Swap {
        std::string at, moved, target;
    } swap;
    cookie_io_functions_t io{};
    io.write = [](void* cookie, const char* text, size_t size) -> ssize_t {
        const Swap& s = *static_cast<Swap*>(cookie);
        if (std::string(text, size).find("org path [" + s.at + "]") != std::string::npos) {
            EXPECT_TRUE(rename(s.at.c_str(), s.moved.c_str()) == 0 &&
                        symlink(s.target.c_str(), s.at.c_str()) == 0);
        }
        return static_cast<ssize_t>(size);
    };
    for (const auto& [entry, moved] : {std::pair{"", "moved-top"}, {"/sub", "moved-sub"}}) {
        MakeTree(P("tree"));
        swap = {P("tree") + entry, P(moved), P("outside")};
        Logger::Initialize(Logger::LOG_TYPE_STDERR, "", "", 2);
        Logger::log_level["file_op_debug"] = Logger::LOG_DEBUG;
        FILE* stream = fopencookie(&swap, "w", io);
        ASSERT_NE(stream, nullptr);
        Logger::log_fp = stream;
        EXPECT_EQ(FSRemove(P("tree"), false), kFSOk) << entry;
        Logger::log_fp = stderr;
        fclose(stream);
        EXPECT_FALSE(Exists(P("tree"))) << entry;
        EXPECT_EQ(ReadFile(P("outside/keep")), "keep") << entry;
        EXPECT_TRUE(IsDir(swap.moved)) << entry;
    }
    Logger::log_level.erase("file_op_debug");
}

TEST_F(FileOpTest, RemoveWalksTreesDeeperThanAPathAndFailsCleanlyPastTheDescriptorLimit)
{
    // 300 levels: a path of 6,300 bytes to the bottom, where a link leads out.
    MakeTree(P("tree"));
    fs::create_directories(P("outside"));
    int fd = open(P("tree").c_str(), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < 300 && fd >= 0; ++level) {
        const int parent = fd;
        fd = mkdirat(parent, "twenty-letters-long", 0755) == 0
                 ? openat(parent, "twenty-letters-long", O_RDONLY)
                 : -1;
        close(parent);
    }
    ASSERT_GE(fd, 0);
    ASSERT_EQ(symlinkat(P("outside").c_str(), fd, "out"), 0);
    close(fd);
    struct rlimit saved;
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &saved), 0);
    const int lowest = dup(0);
    ASSERT_GE(lowest, 0);
    close(lowest);
    // No descriptor for the top, one for the top only, 100 levels' worth, the usual limit.
    for (int spare : {0, 1, 100, -1}) {
        struct rlimit tight = saved;
        if (spare >= 0)
            tight.rlim_cur = static_cast<rlim_t>(lowest + spare);
        ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &tight), 0);
        const int result = FSRemove(P("tree"), false);
        ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &saved), 0);
        EXPECT_EQ(result, spare < 0 ? kFSOk : kFSRemoveFailed) << "spare descriptors: " << spare;
        EXPECT_EQ(IsDir(P("tree/twenty-letters-long")), spare >= 0) << "spare descriptors: " << spare;
    }
    EXPECT_TRUE(IsDir(P("outside")));
}

TEST_F(FileOpTest, RemoveStopsAtAFolderItCannotList)
{
    MakeTree(P("tree"));
    WriteFile(P("tree/locked/hidden"), "h");
    ASSERT_EQ(chmod(P("tree/locked").c_str(), 0300), 0);
    // Root lists any folder: remove as nobody instead, then as root.
    const uid_t nobody = 65534;
    bool owned = lchown(dir.c_str(), nobody, nobody) == 0;
    for (const auto& entry : fs::recursive_directory_iterator(dir))
        owned = lchown(entry.path().c_str(), nobody, nobody) == 0 && owned;
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        _exit(geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0) ? 99
                                                                             : -FSRemove(P("tree"), false));
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == -kFSRemoveFailed) << status;
    EXPECT_EQ(ReadFile(P("tree/locked/hidden")), "h");
    if (geteuid() != 0) {
        chmod(P("tree/locked").c_str(), 0700);
        GTEST_SKIP() << "removing the unlistable folder anyway needs root";
    }
    EXPECT_TRUE(owned);
    EXPECT_EQ(FSRemove(P("tree"), false), kFSOk);
    EXPECT_FALSE(Exists(P("tree")));
}

TEST_F(FileOpTest, ReadFolderListsDotsAndStatusOnlyWhenAsked)
{
    WriteFile(P("file"), "12345");
    struct utimbuf t = {1000000000, 1100000000};
    ASSERT_EQ(utime(P("file").c_str(), &t), 0);
    fs::create_directories(P("sub"));
    fs::create_symlink("file", P("link"));
    struct stat self, sub;
    ASSERT_EQ(stat(dir.c_str(), &self), 0);
    ASSERT_EQ(stat(P("sub").c_str(), &sub), 0);

    // "." and ".." carry the listed folder's own status, a link none.
    using Listing = std::map<std::string, std::tuple<int, time_t, int64_t>>;
    const Listing withStat = {{".", {FILE_TYPE_DIR, self.st_mtime, self.st_size}},
                              {"..", {FILE_TYPE_DIR, self.st_mtime, self.st_size}},
                              {"file", {FILE_TYPE_REGULAR, 1100000000, 5}},
                              {"sub", {FILE_TYPE_DIR, sub.st_mtime, sub.st_size}},
                              {"link", {FILE_TYPE_LINK, 0, 0}}};
    Listing bare = withStat;
    for (auto& [name, entry] : bare) {
        entry = {std::get<0>(entry), 0, 0};
    }
    for (auto [flags, expected] : {std::pair{0, bare}, {FS_DIR_WITH_STAT, withStat}}) {
        DIR_HANDLE h;
        ASSERT_EQ(FSOpenDir(dir.c_str(), flags, h), kFSOk);
        Listing listed;
        DIR_ENTRY e;
        int r;
        while ((r = FSReadDir(h, e)) == kFSReadDirEntry) {
            listed[e.name.c_str()] = {e.type, e.mtime, e.size};
        }
        FSCloseDir(h);
        EXPECT_EQ(r, kFSReadDirEnd);
        EXPECT_EQ(listed, expected) << "flags " << flags;
    }
}

}  // namespace
