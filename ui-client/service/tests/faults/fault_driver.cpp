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
#include <signal.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstdio>
#include <map>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
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

// One line of the shim's trace, and the phase of the upgrade it falls in.
struct Call {
    long n;
    QString func, path, path2;
    long tid;
    Phase phase = kStart;
};

// The shim's trace of one upgrade as it grows, each call given its phase.
class Trace {
public:
    Trace(const QString& path, const QString& app, bool damaged) : file_(path), app_(app), damaged_(damaged)
    {
    }

    // Appends the calls traced since the last read to calls; the first new one.
    size_t Read()
    {
        const size_t from = calls.size();
        if (!file_.isOpen() && !file_.open(QIODevice::ReadOnly))
            return from;
        pending_ += file_.readAll();
        const int complete = pending_.lastIndexOf('\n') + 1;  // a line being written waits
        for (const QByteArray& line : pending_.left(complete).split('\n')) {
            const QList<QByteArray> f = line.split('\t');
            if (f.size() != 5)
                continue;
            calls.push_back(
                {f[0].toLong(), f[1], QString::fromUtf8(f[2]), QString::fromUtf8(f[3]), f[4].toLong()});
            calls.back().phase = Next(calls.back());
        }
        pending_.remove(0, complete);
        return from;
    }

    std::vector<Call> calls;

private:
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

    QFile file_;
    QByteArray pending_;
    const QString app_, backup_ = app_ + "_tmp", pid_file_ = QFileInfo(app_).path() + "/ui.pid";
    const QString record_ = app_ + "/Contents/Resources/INFO";
    const bool damaged_;
    Phase phase_ = kStart;
    bool renamed_ = false, restored_ = false;
};

// Where each phase's calls lie in an unkilled upgrade.
struct Census {
    long total = 0;
    long first[kPhases] = {}, last[kPhases] = {};
};

// How a trial kills: the shim before call shim_at; or from here as soon as
// the trace shows call signal_at, or delay_us after the first call of phase.
// All zero (delay -1): not at all.
struct Kill {
    long shim_at = 0, signal_at = 0;
    Phase phase = kStart;
    long long delay_us = -1;
};

struct Outcome {
    bool set_up = false;
    bool finished = false;  // ended by itself, not by a kill
    bool killed = false;
    std::vector<Call> calls;
};

struct Options {
    int trials, files, only;
    unsigned long seed;
    bool verbose;
};

class FaultDriver {
public:
    explicit FaultDriver(const Options& o) : o_(o) {}

    bool Prepare()
    {
        std::mt19937_64 rng(o_.seed);
        const QString stage = work_.path() + "/stage";
        if (!Stage(stage + "1", kOldBuild, rng) || !Stage(stage + "2", kNewBuild, rng) ||
            QProcess::execute(DW_MAKE_PACKAGE, {"tar.zst", stage + "2.tpk", stage + "2"}) != 0)
            return Fail("cannot stage and pack the builds");
        new_package_ = ReadFile(stage + "2.tpk");
        old_tree_ = dwtest::Snapshot(stage + "1");
        new_tree_ = dwtest::Snapshot(stage + "2");
        old_copy_ = stage + "1";
        // Cut inside the binaries: the entries before them are extracted, and
        // the version record, the last entry, never is.
        damaged_package_ = new_package_.left(new_package_.size() / 2);
        for (const bool damaged : {false, true}) {
            TestBundle b;
            const Outcome run = Launch(b, damaged, Kill());
            if (!run.finished)
                return Fail("the unkilled upgrade did not finish");
            Census& c = census_[damaged];
            for (const Call& call : run.calls) {
                if (c.first[call.phase] == 0)
                    c.first[call.phase] = call.n;
                c.last[call.phase] = c.total = call.n;
            }
            if (o_.verbose) {
                printf("%s package, %ld counted calls:", damaged ? "damaged" : "good", c.total);
                for (int p = 0; p < kPhases; ++p)
                    printf(" %s %ld-%ld", kPhaseNames[p], c.first[p], c.last[p]);
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
        };
        std::map<std::pair<int, bool>, Tally> tally;  // by kill point, then by signal
        int several = 0;
        for (int t = 0; t < o_.trials; ++t) {
            if (o_.only >= 0 && t != o_.only)
                continue;
            const int point = t % kPointCount;
            // The backup is one rename, "any" a number: only a call can hit them.
            const bool by_call = point == 1 || point == 5 || (t + t / kPointCount) % 2 == 0;
            Tally& row = tally[{point, !by_call}];
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
        for (const auto& [key, row] : tally) {
            const int p = key.first;
            printf("%-10s  %-6s  %6d  %6d  %8d  %s\n", p < 5 ? kPhaseNames[kPoints[p]] : "any call",
                   key.second ? "signal" : "call", row.trials, row.killed, row.survived,
                   p < 5 ? QByteArray::number(row.landed).constData() : "-");
            killed += row.killed;
            survived += row.survived;
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
            std::generate(data.begin(), data.end(), [&] { return static_cast<char>(rng()); });
            ok = WriteFile(root + QString("/Contents/Resources/media/clip%1.bin").arg(i), data);
        }
        return ok && QFile::link("data/d0/f1.txt", root + "/Contents/Resources/current.txt") &&
               QFile::link("drift-ui", root + "/Contents/MacOS/ui");
    }

    // A fresh bundle of the new build over an installed old copy whose client
    // runs (ignoring SIGTERM if asked: then the stop takes five seconds).
    bool SetUp(TestBundle& b, bool damaged, bool ignore_term)
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

    // The set-up, then the launcher under the shim, killed as the plan says
    // (a delay is meant for the stop of a client that ignores SIGTERM).
    Outcome Launch(TestBundle& b, bool damaged, const Kill& plan)
    {
        const QString path = work_.path() + "/trace";
        QFile::remove(path);
        Outcome outcome;
        if (!(outcome.set_up = SetUp(b, damaged, plan.delay_us >= 0)))
            return outcome;
        QProcessEnvironment env = b.environment();
        env.insert("LD_PRELOAD", DW_KILL_SHIM);
        env.insert("DW_FAULT_ROOT", b.userDir());
        env.insert("DW_FAULT_TRACE", path);
        if (plan.shim_at > 0)
            env.insert("DW_FAULT_KILL_AT", QString::number(plan.shim_at));
        // A sanitized launcher wants its runtime first; the shim before it is harmless.
        env.insert("ASAN_OPTIONS", env.value("ASAN_OPTIONS") + ":verify_asan_link_order=0");
        QProcess launcher;
        launcher.setProcessEnvironment(env);
        launcher.setStandardOutputFile(QProcess::nullDevice());
        launcher.setStandardErrorFile(QProcess::nullDevice());
        launcher.start(b.executable(), {});
        if (!launcher.waitForStarted())
            return outcome;

        Trace trace(path, b.userApp(), damaged);
        QElapsedTimer clock;
        clock.start();
        long long fire_at = -1;  // microseconds on the clock
        const bool watch = plan.signal_at > 0 || plan.delay_us >= 0;
        while (!launcher.waitForFinished(0) && launcher.state() != QProcess::NotRunning) {
            const long long now = clock.nsecsElapsed() / 1000;
            for (size_t i = watch && fire_at < 0 ? trace.Read() : trace.calls.size();
                 fire_at < 0 && i < trace.calls.size(); ++i) {
                if (plan.signal_at > 0 && trace.calls[i].n >= plan.signal_at)
                    fire_at = 0;
                else if (plan.delay_us >= 0 && trace.calls[i].phase == plan.phase)
                    fire_at = now + plan.delay_us;
            }
            if ((fire_at >= 0 && now >= fire_at) || now > kRunTimeoutMs * 1000LL) {
                launcher.kill();
                fire_at = LLONG_MAX;
            }
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        trace.Read();
        const bool crashed = launcher.exitStatus() == QProcess::CrashExit;
        outcome.finished = !crashed && launcher.exitCode() == 0;
        outcome.killed = crashed && launcher.exitCode() == SIGKILL;
        outcome.calls = std::move(trace.calls);
        return outcome;
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
        QString what =
            QString("trial %1: %2 by %3").arg(t).arg(point < 5 ? kPhaseNames[phase] : "any call").arg(how);
        TestBundle b;
        const Outcome out = Launch(b, damaged, plan);
        const std::vector<Call>& calls = out.calls;
        const auto phase_back = [&](size_t k) {
            return calls.size() > k ? calls[calls.size() - 1 - k].phase : kStart;
        };
        landed = point < 5 && (phase_back(0) == phase || phase_back(1) == phase);
        std::set<long> threads;
        int extracting = 0;
        for (auto call = calls.rbegin(); call != calls.rend() && extracting < 32; ++call) {
            if (call->phase == kExtract) {
                threads.insert(call->tid);
                ++extracting;
            }
        }
        several = landed && phase == kExtract && threads.size() > 1;
        QString failure = !out.set_up ? "set-up failed" : !out.killed ? "not killed" : QString();
        if (failure.isEmpty()) {
            what += QString(", landed in %1").arg(kPhaseNames[phase_back(0)]);
            failure = Check(b, damaged ? old_tree_ : new_tree_, what);
        }
        if (o_.verbose || !failure.isEmpty())
            printf("%s: %s\n", qPrintable(what), failure.isEmpty() ? "survived" : qPrintable(failure));
        fflush(stdout);
        return failure;
    }

    // What the next, unkilled launch leaves; an empty text when all is well,
    // else what is wrong and that launch's log.
    QString Check(const TestBundle& b, const dwtest::Tree& package, QString& what)
    {
        const QString app = b.userApp();
        const auto backups = [&] {
            QStringList found;
            for (QDirIterator it(b.userDir(), {"Driftwell.app_tmp*"}, QDir::AllEntries); it.hasNext();)
                found << it.next();
            return found;
        };
        // What the killed run left, each to be named in a warning.
        QStringList left = backups();
        const QSettings record(app + "/Contents/Resources/INFO", QSettings::IniFormat);
        if (QFileInfo::exists(app) && !(QFile::exists(app + "/Contents/MacOS/drift-ui") &&
                                        !record.value("Version/build_version").toString().isEmpty()))
            left << app;
        what += QString(", left %1 folder(s)").arg(left.size());

        const int offset = b.log().size();
        const RunResult again = b.run();
        const QString log = b.log().mid(offset);
        const auto verify = [&]() -> QString {
            if (!again.exited_with_zero)
                return "the next launch did not exit with 0";
            if (dwtest::Snapshot(app) != package)
                return "the per-user copy differs from the package";
            if (!backups().isEmpty())
                return "left in place: " + backups().join(", ");
            for (const QString& folder : left) {
                if (LinesWith(log, "[WARNING]").filter("'" + folder + "'").isEmpty())
                    return "no warning names " + folder;
            }
            const QString exe = app + "/Contents/MacOS/drift-ui";
            const auto one_client = [&] {
                const qint64 pid = b.clientPid();
                return ProcessRunsExecutable(static_cast<pid_t>(pid), QFile::encodeName(exe).constData()) &&
                       b.processes() == QList<qint64>{pid};
            };
            return dwtest::WaitFor(one_client, 20000)
                       ? QString()
                       : "not exactly one client, running from the per-user copy";
        };
        const QString failure = verify();
        return failure.isEmpty() ? failure : failure + "\nnext launch's log:\n" + log;
    }

    Options o_;
    QTemporaryDir work_;
    QByteArray new_package_, damaged_package_;
    dwtest::Tree old_tree_, new_tree_;
    QString old_copy_;
    Census census_[2];  // good package, damaged package
};

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCommandLineParser args;
    args.addOptions({{"trials", "Trials to run.", "N", "60"},
                     {"seed", "Seed of the trials.", "S", "1"},
                     {"files", "Files in each build.", "F", "2400"},
                     {"only", "Runs trial T alone.", "T", "-1"},
                     {"v", "Prints the calls of each phase and every trial."}});
    args.process(app);
    const Options o{args.value("trials").toInt(), args.value("files").toInt(), args.value("only").toInt(),
                    args.value("seed").toULong(), args.isSet("v")};
    FaultDriver driver(o);
    printf("fault injection: seed %lu, %d trials, package of %d files\n", o.seed, o.trials, o.files);
    fflush(stdout);
    if (!driver.Prepare())
        return 1;
    return driver.Run() ? 0 : 1;
}
