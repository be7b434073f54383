// The zstd setting of the shipped package, shared by the packer and the
// benchmark packages that stand in for it.
//
// Level 1 keeps the stream's window at 512 KiB (level 3, libarchive's default,
// has 2 MiB). The extractor decompresses a compressed package twice at the
// same time, once to count its entries and once to write them, so each
// decoder's window counts twice in the launcher's peak memory: level 3 put
// the extraction 6.0 MiB above bsdtar's peak, level 1 puts it 4.4 MiB above,
// for a package about 7 % larger (140 MiB of files: 51.6 instead of 48.1 MiB)
// that decompresses as fast.
#ifndef DW_BUNDLE_PACKAGE_ZSTD_H
#define DW_BUNDLE_PACKAGE_ZSTD_H

#define DW_PACKAGE_ZSTD_OPTIONS "zstd:compression-level=1"

#endif
