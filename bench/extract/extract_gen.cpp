// Writes a synthetic application package, shaped like a real client bundle,
// as package.tar, package.tar.gz, package.tar.zst and package.zip into the
// given folder, plus package.stats with what an extraction must produce.
// The content is fixed by the seed, so every run measures the same bytes.
// Existing archives of the same generator version are kept.
//
// Shape: about 3,000 files in about 280 folders, about 140 MiB: a few large
// binaries (mixed blocks of machine-code-like tokens, string tables, padding
// and random data, so that compressors find what they find in real binaries),
// plug-ins and framework binaries of medium size, images (random: already
// compressed), translation catalogues, and many small text files (headers,
// QML, strings), plus framework "Versions/Current" symbolic links.
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "package_zstd.h"
#include "test_archive.h"

namespace {

using dwtest::Entry;

const char kVersion[] = "extract_gen 2";  // 2: tar.zst at the packer's level
const char* const kPackings[] = {"tar", "tar.gz", "tar.zst", "zip"};

// splitmix64: fast, and the same sequence on every machine.
class Rng {
public:
    explicit Rng(uint64_t seed) : state_(seed) {}
    uint64_t next()
    {
        uint64_t z = (state_ += 0x9e3779b97f4a7c15ULL);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
        return z ^ (z >> 31);
    }
    // Uniform in [lo, hi].
    size_t range(size_t lo, size_t hi) { return lo + next() % (hi - lo + 1); }
    double unit() { return (next() >> 11) * (1.0 / 9007199254740992.0); }

private:
    uint64_t state_;
};

struct Stats {
    long files = 0;
    long folders = 0;
    long symlinks = 0;
    long long bytes = 0;
};

class Package {
public:
    explicit Package(const std::string& dir) : rng_(20240601)
    {
        for (int i = 0; i < 3000; ++i) {
            std::string w;
            const size_t len = rng_.range(2, 11);
            for (size_t k = 0; k < len; ++k)
                w += static_cast<char>('a' + rng_.next() % 26);
            words_.push_back(w);
        }
        for (const char* packing : kPackings)
            open(dir + "/package." + packing, packing);
    }

    bool close()
    {
        bool ok = ok_;
        for (auto& w : writers_)
            ok = w->Close() && ok;
        writers_.clear();
        return ok;
    }

    void folder(const std::string& path)
    {
        ++stats.folders;
        put({Entry::Folder, path, "", 0755});
    }
    void file(const std::string& path, const std::string& content, int perm = 0644)
    {
        ++stats.files;
        stats.bytes += static_cast<long long>(content.size());
        put({Entry::File, path, content, perm});
    }
    void symlink(const std::string& path, const std::string& target)
    {
        ++stats.symlinks;
        put({Entry::Symlink, path, target, 0755});
    }

    // Source-like text: skewed word choice, short lines, some indentation.
    std::string text(size_t size)
    {
        std::string out;
        out.reserve(size + 16);
        size_t line = 0;
        while (out.size() < size) {
            const double u = rng_.unit();
            out += words_[static_cast<size_t>(u * u * u * static_cast<double>(words_.size()))];
            const uint64_t r = rng_.next() % 16;
            out += r == 0 ? "(" : r == 1 ? ");" : r == 2 ? " = " : r == 3 ? "." : " ";
            if (out.size() - line > 50 + rng_.next() % 40) {
                out += "\n";
                line = out.size();
                out.append(4 * (rng_.next() % 3), ' ');
            }
        }
        out.resize(size);
        return out;
    }

    std::string random(size_t size)
    {
        std::string out(size, '\0');
        for (size_t i = 0; i < size; i += 8) {
            const uint64_t r = rng_.next();
            for (size_t k = 0; k < 8 && i + k < size; ++k)
                out[i + k] = static_cast<char>(r >> (8 * k));
        }
        return out;
    }

    // Executable-like content in 4 KiB blocks: mostly code, made of recurring
    // instruction sequences from a per-file dictionary with some operands
    // patched, then string tables, padding and incompressible data
    // (compressed resources, tables).
    std::string binary(size_t size)
    {
        std::vector<std::string> snippets(256);
        for (std::string& s : snippets)
            s = random(rng_.range(6, 40));
        std::string out;
        out.reserve(size + 8192);
        while (out.size() < size) {
            const uint64_t kind = rng_.next() % 20;
            if (kind < 13) {
                const size_t end = out.size() + 4096;
                while (out.size() < end) {
                    const double u = rng_.unit();
                    const std::string& s =
                        snippets[static_cast<size_t>(u * u * static_cast<double>(snippets.size()))];
                    out += s;
                    if (rng_.next() % 3 == 0)
                        out += random(4);
                }
            } else if (kind < 16) {
                std::string strings = text(4096);
                for (char& c : strings)
                    if (c == ' ' && rng_.next() % 5 == 0)
                        c = '\0';
                out += strings;
            } else if (kind < 18) {
                out.append(4096, '\0');
            } else {
                out += random(4096);
            }
        }
        out.resize(size);
        return out;
    }

    Rng& rng() { return rng_; }
    Stats stats;

private:
    void open(const std::string& path, const std::string& packing)
    {
        const int filter = packing == "tar.gz"    ? ARCHIVE_FILTER_GZIP
                           : packing == "tar.zst" ? ARCHIVE_FILTER_ZSTD
                                                  : ARCHIVE_FILTER_NONE;
        const int format = packing == "zip" ? ARCHIVE_FORMAT_ZIP : ARCHIVE_FORMAT_TAR_PAX_RESTRICTED;
        // tar.zst as the packer writes the shipped package.
        const dwtest::Packing fixed = {
            format, filter, filter == ARCHIVE_FILTER_ZSTD ? DW_PACKAGE_ZSTD_OPTIONS : nullptr, 1717200000};
        writers_.push_back(std::make_unique<dwtest::ArchiveWriter>(path, fixed));
    }

    void put(const Entry& entry)
    {
        for (auto& w : writers_) {
            if (!w->Add(entry)) {
                fprintf(stderr, "extract_gen: %s: %s\n", entry.name.c_str(), w->Error().c_str());
                ok_ = false;
            }
        }
    }

    Rng rng_;
    std::vector<std::string> words_;
    std::vector<std::unique_ptr<dwtest::ArchiveWriter>> writers_;
    bool ok_ = true;
};

const size_t KiB = 1024;
const size_t MiB = 1024 * 1024;

void build(Package& p)
{
    Rng& rng = p.rng();
    p.folder("Contents");
    p.file("Contents/Info.plist", p.text(3 * KiB));
    p.file("Contents/PkgInfo", "APPL????");
    p.folder("Contents/MacOS");
    p.file("Contents/MacOS/drift-ui", p.binary(26 * MiB), 0755);
    p.file("Contents/MacOS/drift-helper", p.binary(6 * MiB), 0755);

    // Frameworks: five large, the rest of medium size; headers for some.
    const char* const frameworks[] = {"DriftCore", "QtCore",  "QtGui",     "QtWidgets", "QtQml",
                                      "QtNetwork", "QtQuick", "QtSvg",     "QtDBus",    "QtPrintSupport",
                                      "QtXml",     "Sparkle", "DriftSync", "DriftShell"};
    const size_t large[] = {22 * MiB, 16 * MiB, 12 * MiB, 8 * MiB, 6 * MiB};
    p.folder("Contents/Frameworks");
    for (size_t i = 0; i < sizeof frameworks / sizeof *frameworks; ++i) {
        const std::string name = frameworks[i];
        const std::string fw = "Contents/Frameworks/" + name + ".framework";
        const std::string version = fw + "/Versions/A";
        p.folder(fw);
        p.folder(fw + "/Versions");
        p.folder(version);
        p.file(version + "/" + name, p.binary(i < 5 ? large[i] : rng.range(400 * KiB, 1600 * KiB)), 0755);
        p.folder(version + "/Resources");
        p.file(version + "/Resources/Info.plist", p.text(rng.range(1 * KiB, 2 * KiB)));
        if (i < 8) {
            p.folder(version + "/Headers");
            for (size_t h = 0, n = rng.range(30, 50); h < n; ++h)
                p.file(version + "/Headers/" + name + "_" + std::to_string(h) + ".h",
                       p.text(rng.range(1 * KiB, 10 * KiB)));
        }
        p.symlink(fw + "/Versions/Current", "A");
    }

    p.folder("Contents/PlugIns");
    const char* const plugins[] = {"platforms", "imageformats", "iconengines",
                                   "styles",    "bearer",       "sqldrivers"};
    for (const char* kind : plugins) {
        const std::string dir = std::string("Contents/PlugIns/") + kind;
        p.folder(dir);
        for (size_t k = 0, n = rng.range(5, 10); k < n; ++k)
            p.file(dir + "/lib" + kind + std::to_string(k) + ".dylib",
                   p.binary(rng.range(80 * KiB, 500 * KiB)), 0755);
    }

    p.folder("Contents/Resources");
    p.folder("Contents/Resources/translations");
    const char* const langs[] = {"en", "zh_TW", "zh_CN", "ja", "de", "ko", "fr", "it", "es", "pt_BR",
                                 "ru", "da",    "nb",    "sv", "nl", "pl", "hu", "pt", "tr", "cs"};
    for (const char* lang : langs) {
        const std::string lproj = std::string("Contents/Resources/") + lang + ".lproj";
        p.folder(lproj);
        p.file(lproj + "/Localizable.strings", p.text(rng.range(20 * KiB, 40 * KiB)));
        p.file(lproj + "/InfoPlist.strings", p.text(rng.range(200, 600)));
        p.file(std::string("Contents/Resources/translations/drift_") + lang + ".qm",
               p.text(rng.range(60 * KiB, 140 * KiB)));
    }

    p.folder("Contents/Resources/images");
    for (int g = 0; g < 10; ++g) {
        const std::string group = "Contents/Resources/images/set" + std::to_string(g);
        p.folder(group);
        for (int s = 0; s < 4; ++s) {
            const std::string dir = group + "/scale" + std::to_string(s + 1) + "x";
            p.folder(dir);
            for (size_t k = 0, n = rng.range(10, 20); k < n; ++k)
                p.file(dir + "/icon_" + std::to_string(k) + ".png", p.random(rng.range(2 * KiB, 40 * KiB)));
        }
    }

    p.folder("Contents/Resources/qml");
    for (int m = 0; m < 22; ++m) {
        const std::string module = "Contents/Resources/qml/Module" + std::to_string(m);
        p.folder(module);
        for (size_t s = 0, subs = rng.range(4, 6); s < subs; ++s) {
            const std::string dir = module + "/part" + std::to_string(s);
            p.folder(dir);
            for (size_t k = 0, n = rng.range(13, 26); k < n; ++k)
                p.file(dir + "/View" + std::to_string(k) + (k % 4 == 0 ? ".js" : ".qml"),
                       p.text(rng.range(300, 6 * KiB)));
        }
    }
}

bool up_to_date(const std::string& stats_path)
{
    std::ifstream in(stats_path);
    std::string first;
    return std::getline(in, first) && first == kVersion;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        fprintf(stderr, "usage: extract_gen FOLDER\n");
        return 2;
    }
    const std::string dir = argv[1];
    const std::string stats_path = dir + "/package.stats";
    if (up_to_date(stats_path))
        return 0;
    std::remove(stats_path.c_str());

    Package package(dir);
    build(package);
    if (!package.close())
        return 1;
    // Written last: its presence means the archives are complete.
    std::ofstream out(stats_path);
    out << kVersion << "\n"
        << package.stats.files << " " << package.stats.folders << " " << package.stats.symlinks << " "
        << package.stats.bytes << "\n";
    return out.good() ? 0 : 1;
}
