// Kills the launcher with SIGKILL in the middle of upgrades of a package of
// some thousand entries, starts it again normally and checks what that launch
// leaves: the per-user copy equal to the package, its client running (and no
// other), no backup folder, and a warning naming each folder the killed run
// left behind.
//
//   fault_driver [--trials N] [--seed S] [--files F] [--only T] [-v]
//
// Kill points: the stop of the running client, the backup rename, the
// extraction, the rollback (the package breaks off half-way; the next launch
// meets it again and must bring the old copy back), the clean-up of the
// backup, and any counted call at all. A trial kills either at the k-th
// counted file-system call (kill_shim raises SIGKILL itself) or by a SIGKILL
// from here after a random delay into the point. k and the delay are drawn
// from a first, unkilled run of each package with a generator seeded by S and
// the trial number: the same seed gives the same trials. Prints the survivors
// per point; exit status 0 when every killed trial survived.
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstdio>
#include <cstring>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include "launcher_testkit.h"
#include "process_identity.h"

namespace {

using dwtest::ReadFile;
using dwtest::WriteFile;

enum Phase { kStart, kStop, kBackup, kExtract, kRollback, kCleanUp, kPost, kPhases };
const char* const kPhaseNames[kPhases] = {"start",    "stop",     "backup", "extract",
                                          "rollback", "clean-up", "post"};
// The kill points: a phase each, and then any call.
const Phase kPoints[] = {kStop, kBackup, kExtract, kRollback, kCleanUp};
const int kPointCount = 6;
const int kOldBuild = 1, kNewBuild = 2;

long long NowUs()
{
    return std::chrono::duration_cast<std::chrono::microseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// One line of the shim's trace.
struct Call {
    long n = 0;
    long long us = 0;
    QString func, path, path2;
    long tid = 0;
};

bool ParseCall(const QByteArray& line, Call& call)
{
    const QList<QByteArray> f = line.split('\t');
    if (f.size() != 6)
        return false;
    call = {f[0].toLong(),           f[1].toLongLong(),       f[2],
            QString::fromUtf8(f[3]), QString::fromUtf8(f[4]), f[5].toLong()};
    return true;
}

// Follows one upgrade through its counted calls.
class PhaseTracker {
public:
    PhaseTracker(const QString& app, bool damaged)
        : app_(app),
          backup_(app + "_tmp"),
          pid_file_(QFileInfo(app).path() + "/ui.pid"),
          record_(app + "/Contents/Resources/INFO"),
          damaged_(damaged)
    {
    }

    Phase Next(const Call& c)
    {
        const bool backup = c.path.startsWith(backup_) || c.path2.startsWith(backup_);
        const bool rename = c.func.startsWith("rename");
        const bool signal = c.func == "kill" || c.func == "pidfd_send_signal";
        if ((phase_ == kStart || phase_ == kStop) && (signal || c.path == pid_file_))
            return phase_ = kStop;
        if (phase_ == kStop)
            phase_ = kBackup;  // the checks before the rename, then the rename
        else if (phase_ == kBackup && renamed_)
            phase_ = kExtract;
        // The rollback's first step takes the record of the partial copy.
        else if (phase_ == kExtract && (backup || (damaged_ && c.path == record_)))
            phase_ = damaged_ ? kRollback : kCleanUp;
        else if ((phase_ == kCleanUp && !backup) || (phase_ == kRollback && restored_))
            phase_ = kPost;
        renamed_ = renamed_ || (phase_ == kBackup && rename && c.path == app_);
        restored_ = restored_ || (phase_ == kRollback && rename && c.path2 == app_);
        return phase_;
    }

private:
    QString app_, backup_, pid_file_, record_;
    bool damaged_;
    Phase phase_ = kStart;
    bool renamed_ = false, restored_ = false;
};

// Where each phase's calls lie in an unkilled upgrade.
struct Census {
    long total = 0;
    long first[kPhases] = {}, last[kPhases] = {};
    long long first_us[kPhases] = {}, last_us[kPhases] = {};
};

struct Options {
    int trials = 60;
    unsigned long seed = 1;
    int files = 2400;
    int only = -1;
    bool verbose = false;
};

class FaultDriver {
public:
    explicit FaultDriver(const Options& o) : o_(o) {}

    bool Prepare()
    {
        std::mt19937_64 rng(o_.seed);
        const QString stage = work_.path() + "/stage";
        if (!Stage(stage + "1", kOldBuild, rng) || !Stage(stage + "2", kNewBuild, rng) ||
            !Pack(stage + "1", old_package_) || !Pack(stage + "2", new_package_))
            return false;
        old_tree_ = dwtest::Snapshot(stage + "1");
        new_tree_ = dwtest::Snapshot(stage + "2");
        old_copy_ = stage + "1";
        // Cut inside the binaries: the entries before them are extracted, and
        // the version record, the last entry, never is.
        damaged_package_ = new_package_.left(new_package_.size() / 2);
        for (const bool damaged : {false, true}) {
            TestBundle b;
            const QString trace = work_.path() + "/census";
            QFile::remove(trace);
            if (!SetUp(b, damaged) || !Launch(b, trace, damaged, Kill()).finished)
                return Fail("the unkilled upgrade did not finish");
            Census& c = census_[damaged];
            PhaseTracker tracker(b.userApp(), damaged);
            for (const QByteArray& line : ReadFile(trace).split('\n')) {
                Call call;
                if (!ParseCall(line, call))
                    continue;
                const Phase p = tracker.Next(call);
                if (c.first[p] == 0) {
                    c.first[p] = call.n;
                    c.first_us[p] = call.us;
                }
                c.last[p] = c.total = call.n;
                c.last_us[p] = call.us;
            }
            if (o_.verbose) {
                printf("%s package, %ld counted calls:", damaged ? "damaged" : "good", c.total);
                for (int p = 0; p < kPhases; ++p)
                    printf(" %s %ld-%ld (%lld us)", kPhaseNames[p], c.first[p], c.last[p],
                           c.last_us[p] - c.first_us[p]);
                printf("\n");
            }
            for (const Phase p : kPoints) {
                if (c.first[p] == 0 && p != (damaged ? kCleanUp : kRollback))
                    return Fail(QString("no %1 phase in the unkilled upgrade").arg(kPhaseNames[p]));
            }
        }
        return true;
    }

    // Runs the trials; true when every killed one survived.
    bool Run()
    {
        struct Tally {
            int trials = 0, killed = 0, survived = 0, landed = 0;
        } tally[kPointCount][2];
        int several = 0;
        for (int t = 0; t < o_.trials; ++t) {
            if (o_.only >= 0 && t != o_.only)
                continue;
            const int point = t % kPointCount;
            // The backup is one rename, "any" a number: only a call can hit them.
            const bool by_call = point == 1 || point == 5 || (t + t / kPointCount) % 2 == 0;
            Tally& row = tally[point][by_call ? 0 : 1];
            ++row.trials;
            bool landed = false, busy = false;
            const QString failure = Trial(t, point, by_call, landed, busy);
            if (failure == "not killed")
                continue;
            ++row.killed;
            row.survived += failure.isEmpty();
            row.landed += landed;
            several += busy;
        }
        int killed = 0, survived = 0;
        printf("\nkill point  by      trials  killed  survived  landed in the point\n");
        for (int p = 0; p < kPointCount; ++p) {
            for (int m = 0; m < 2; ++m) {
                const Tally& row = tally[p][m];
                if (row.trials == 0)
                    continue;
                printf("%-10s  %-6s  %6d  %6d  %8d  %s\n", p < 5 ? kPhaseNames[kPoints[p]] : "any call",
                       m == 0 ? "call" : "signal", row.trials, row.killed, row.survived,
                       p < 5 ? QByteArray::number(row.landed).constData() : "-");
                killed += row.killed;
                survived += row.survived;
            }
        }
        printf("all         %d killed, %d survived\n", killed, survived);
        printf("kills in the extraction with several threads among its last 32 calls: %d\n", several);
        return killed > 0 && survived == killed;
    }

private:
    bool Fail(const QString& why)
    {
        fprintf(stderr, "fault_driver: %s\n", qPrintable(why));
        return false;
    }

    // A per-user bundle of the given build: the fake client as drift-ui, about
    // a tenth as many folders as files, a few links, and large binaries that
    // the packer's sorted order puts near the end, so that a package cut in
    // the middle extracts most entries before it fails. The new build drops
    // some files and adds others.
    bool Stage(const QString& root, int build, std::mt19937_64& rng)
    {
        bool ok = WriteFile(root + "/Contents/MacOS/drift-ui", ReadFile(QString(DW_FAKE_CLIENT)), 0705) &&
                  WriteFile(root + "/Contents/Resources/INFO", InfoRecord(build));
        for (int i = 0; ok && i < o_.files; ++i) {
            const QString name = build == kNewBuild && i % 50 == 7
                                     ? QString("Contents/Resources/new/n%1.txt").arg(i)
                                     : QString("Contents/Resources/data/d%1/f%2.txt").arg(i / 10).arg(i);
            ok = WriteFile(root + "/" + name,
                           QString("build %1 file %2\n").arg(build).arg(i).toUtf8().repeated(1 + i % 40));
        }
        for (int i = 0; ok && i < 4; ++i) {
            QByteArray data(256 * 1024, '\0');
            for (char& byte : data)
                byte = static_cast<char>(rng());
            ok = WriteFile(root + QString("/Contents/Resources/media/clip%1.bin").arg(i), data);
        }
        return ok && QFile::link("data/d0/f1.txt", root + "/Contents/Resources/current.txt") &&
               QFile::link("drift-ui", root + "/Contents/MacOS/ui");
    }

    bool Pack(const QString& root, QByteArray& package)
    {
        const QString file = root + ".tpk";
        if (QProcess::execute(DW_MAKE_PACKAGE, {"tar.zst", file, root}) != 0)
            return Fail("make_package failed");
        package = ReadFile(file);
        return true;
    }

    // A fresh bundle of the new build over an installed old copy whose client
    // runs (ignoring SIGTERM if asked: then the stop takes five seconds).
    bool SetUp(TestBundle& b, bool damaged, bool ignore_term = false)
    {
        // Default thresholds: the log shows warnings and errors only.
        if (!b.ok() || !WriteFile(b.bundle() + "/log/launcher.debug", "") ||
            !WriteFile(b.bundle() + "/Contents/Resources/INFO", InfoRecord(kNewBuild)) ||
            !WriteFile(b.package(), damaged ? damaged_package_ : new_package_) ||
            !QDir().mkpath(b.userDir()) || QProcess::execute("cp", {"-a", old_copy_, b.userApp()}) != 0)
            return Fail("cannot set up a bundle");
        QProcess client;
        client.setProgram(b.userApp() + "/Contents/MacOS/drift-ui");
        QProcessEnvironment env = b.environment();
        env.insert("DW_FAKE_CLIENT_MODE", ignore_term ? "ignore" : "term");
        client.setProcessEnvironment(env);
        qint64 pid = 0;
        if (!client.startDetached(&pid))
            return Fail("cannot start the old client");
        return dwtest::WaitFor([&] { return b.clientPid() == pid; }, 5000) ||
               Fail("the old client wrote no pid file");
    }

    struct Outcome {
        bool finished = false;  // ended by itself, not by a kill
        bool killed = false;
    };

    // How a trial kills: the shim before call shim_at; or from here as soon
    // as the trace shows call signal_at, or delay_us after the first call of
    // phase. All zero (delay -1): not at all.
    struct Kill {
        long shim_at = 0, signal_at = 0;
        Phase phase = kStart;
        long long delay_us = -1;
    };

    // The launcher under the shim, tracing to `trace`.
    Outcome Launch(const TestBundle& b, const QString& trace, bool damaged, const Kill& kill_plan)
    {
        QProcessEnvironment env = b.environment();
        env.insert("LD_PRELOAD", DW_KILL_SHIM);
        env.insert("DW_FAULT_ROOT", b.userDir());
        env.insert("DW_FAULT_TRACE", trace);
        if (kill_plan.shim_at > 0)
            env.insert("DW_FAULT_KILL_AT", QString::number(kill_plan.shim_at));
        // A sanitized launcher wants its runtime first; the shim before it is harmless.
        env.insert("ASAN_OPTIONS", env.value("ASAN_OPTIONS") + ":verify_asan_link_order=0");
        std::vector<QByteArray> strings;
        std::vector<char*> envp;
        for (const QString& s : env.toStringList())
            strings.push_back(s.toUtf8());
        for (QByteArray& s : strings)
            envp.push_back(s.data());
        envp.push_back(nullptr);
        QByteArray exe = QFile::encodeName(b.executable());
        char* argv[] = {exe.data(), nullptr};
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
        pid_t pid = 0;
        const int spawned = posix_spawn(&pid, exe.constData(), &actions, nullptr, argv, envp.data());
        posix_spawn_file_actions_destroy(&actions);
        Outcome outcome;
        if (spawned != 0)
            return outcome;

        PhaseTracker tracker(b.userApp(), damaged);
        QFile file(trace);
        QByteArray pending;
        const long long start = NowUs();
        long long fire_at = -1;
        int status = 0;
        while (waitpid(pid, &status, WNOHANG) == 0) {
            const bool watch = kill_plan.signal_at > 0 || kill_plan.delay_us >= 0;
            if (watch && fire_at < 0 && (file.isOpen() || file.open(QIODevice::ReadOnly))) {
                pending += file.readAll();
                for (int end; fire_at < 0 && (end = pending.indexOf('\n')) >= 0;) {
                    Call call;
                    const bool parsed = ParseCall(pending.left(end), call);
                    pending.remove(0, end + 1);
                    if (parsed && kill_plan.signal_at > 0 && call.n >= kill_plan.signal_at)
                        fire_at = 0;
                    else if (parsed && kill_plan.delay_us >= 0 && tracker.Next(call) == kill_plan.phase)
                        fire_at = NowUs() + kill_plan.delay_us;
                }
            }
            const long long now = NowUs();
            if ((fire_at >= 0 && now >= fire_at) || now - start > kRunTimeoutMs * 1000LL) {
                kill(pid, SIGKILL);
                fire_at = LLONG_MAX;
            }
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        outcome.finished = WIFEXITED(status) && WEXITSTATUS(status) == 0;
        outcome.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
        return outcome;
    }

    static bool IsComplete(const QString& copy)
    {
        return QFile::exists(copy + "/Contents/MacOS/drift-ui") &&
               !QSettings(copy + "/Contents/Resources/INFO", QSettings::IniFormat)
                    .value("Version/build_version")
                    .toString()
                    .isEmpty();
    }

    // One trial; an empty text when it survived, "not killed" when the kill
    // never came, else what went wrong. landed: the last call traced (the one
    // the kill prevented or interrupted) or the one before it is of the point.
    // several: a kill in the extraction with two threads or more among the
    // last 32 calls of it, the writers busy side by side.
    QString Trial(int t, int point, bool by_call, bool& landed, bool& several)
    {
        std::mt19937_64 rng(o_.seed * 1000003 + t);
        const bool damaged = point == 3;
        const Census& c = census_[damaged];
        const Phase phase = point < 5 ? kPoints[point] : kStart;
        Kill plan;
        plan.phase = phase;
        QString how;
        if (by_call) {
            const long first = point < 5 ? c.first[phase] : 1;
            const long last = point < 5 ? c.last[phase] + 1 : c.total;
            plan.shim_at = std::uniform_int_distribution<long>(first, last)(rng);
            how = QString("the shim before call %1").arg(plan.shim_at);
        } else if (phase == kStop) {
            // A client that ignores SIGTERM: five one-second probes.
            plan.delay_us = std::uniform_int_distribution<long long>(0, 5000000)(rng);
            how = QString("a signal %1 us into the stop").arg(plan.delay_us);
        } else {
            // Timings vary too much to aim by the clock: the signal follows a call.
            plan.signal_at = std::uniform_int_distribution<long>(c.first[phase], c.last[phase])(rng);
            how = QString("a signal once call %1 is traced").arg(plan.signal_at);
        }
        const QString what =
            QString("trial %1: %2 by %3").arg(t).arg(point < 5 ? kPhaseNames[phase] : "any call").arg(how);
        TestBundle b;
        const QString trace = work_.path() + "/trace";
        QFile::remove(trace);
        if (!SetUp(b, damaged, phase == kStop && !by_call))
            return Report(what, "set-up failed");
        if (!Launch(b, trace, damaged, plan).killed)
            return Report(what, "not killed");
        PhaseTracker tracker(b.userApp(), damaged);
        Phase last = kStart, before = kStart;
        std::vector<long> extracting;  // the thread of each call of the extraction
        for (const QByteArray& line : ReadFile(trace).split('\n')) {
            Call call;
            if (ParseCall(line, call)) {
                before = last;
                last = tracker.Next(call);
                if (last == kExtract)
                    extracting.push_back(call.tid);
            }
        }
        landed = point < 5 && (last == phase || before == phase);
        const size_t recent = std::min<size_t>(extracting.size(), 32);
        several = landed && phase == kExtract &&
                  std::set<long>(extracting.end() - static_cast<long>(recent), extracting.end()).size() > 1;

        // What the killed run left, for the log check.
        const QString app = b.userApp();
        QStringList left;
        for (int i = 0; i <= 9; ++i) {
            const QString backup = app + "_tmp" + (i == 0 ? QString() : QString::number(i));
            if (QFileInfo::exists(backup))
                left << backup;
        }
        if (QFileInfo::exists(app) && !IsComplete(app))
            left << app;

        const int offset = b.log().size();
        const RunResult again = b.run();
        const QString log = b.log().mid(offset);
        QString failure;
        if (!again.exited_with_zero)
            failure = "the next launch did not exit with 0";
        else if (dwtest::Snapshot(app) != (damaged ? old_tree_ : new_tree_))
            failure = "the per-user copy differs from the package";
        for (int i = 0; failure.isEmpty() && i <= 9; ++i) {
            if (QFileInfo::exists(app + "_tmp" + (i == 0 ? QString() : QString::number(i))))
                failure = QString("backup %1 remains").arg(i);
        }
        for (const QString& folder : left) {
            if (failure.isEmpty() && LinesWith(log, "[WARNING]").filter("'" + folder + "'").isEmpty())
                failure = "no warning names " + folder;
        }
        if (failure.isEmpty()) {
            const QString exe = app + "/Contents/MacOS/drift-ui";
            const auto one_client = [&] {
                const qint64 pid = b.clientPid();
                return ProcessRunsExecutable(static_cast<pid_t>(pid), QFile::encodeName(exe).constData()) &&
                       b.processes() == QList<qint64>{pid};
            };
            if (!dwtest::WaitFor(one_client, 20000))
                failure = "not exactly one client, running from the per-user copy";
        }
        if (o_.verbose || !failure.isEmpty())
            printf("%s, landed in %s, left %d folder(s): %s\n", qPrintable(what), kPhaseNames[last],
                   static_cast<int>(left.size()), failure.isEmpty() ? "survived" : qPrintable(failure));
        if (!failure.isEmpty())
            printf("next launch's log:\n%s\n", qPrintable(log));
        fflush(stdout);
        return failure;
    }

    QString Report(const QString& what, const QString& failure)
    {
        printf("%s: %s\n", qPrintable(what), qPrintable(failure));
        return failure;
    }

    Options o_;
    QTemporaryDir work_;
    QByteArray old_package_, new_package_, damaged_package_;
    dwtest::Tree old_tree_, new_tree_;
    QString old_copy_;
    Census census_[2];  // good package, damaged package
};

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    Options o;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        const bool value = i + 1 < argc;
        if (arg == "--trials" && value)
            o.trials = atoi(argv[++i]);
        else if (arg == "--seed" && value)
            o.seed = strtoul(argv[++i], nullptr, 10);
        else if (arg == "--files" && value)
            o.files = atoi(argv[++i]);
        else if (arg == "--only" && value)
            o.only = atoi(argv[++i]);
        else if (arg == "-v")
            o.verbose = true;
        else {
            fprintf(stderr, "usage: %s [--trials N] [--seed S] [--files F] [--only T] [-v]\n", argv[0]);
            return 2;
        }
    }
    FaultDriver driver(o);
    printf("fault injection: seed %lu, %d trials, package of %d files\n", o.seed, o.trials, o.files);
    fflush(stdout);
    if (!driver.Prepare())
        return 1;
    return driver.Run() ? 0 : 1;
}
