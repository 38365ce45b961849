#!/usr/bin/env bash
# The installed project as a host developer and a desktop get it: installs the build into
# a temporary prefix, checks what went where, and builds and runs the example host against
# the installed CMake package, offscreen.
#   install_test.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
build=$(cd "$1" && pwd)
source=$(cd "$2" && pwd)
cmake=${CMAKE_COMMAND:-cmake}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix

fail() { echo "install_test: $*" >&2; exit 1; }
# Runs a command quietly; its output is shown when it fails.
quiet() { "$@" >"$work/log" 2>&1 || { cat "$work/log" >&2; fail "failed: $*"; }; }

quiet "$cmake" --install "$build" --prefix "$prefix"
for file in bin/docmanager bin/docmanager-samples libexec/docmanager/docmanager-window \
            lib/docmanager/docmanager-pdfole.so \
            lib/libdocmgr.so.2 lib/libdocmgr.so include/docmgr/docmgr_export.h \
            include/docmgr/manager/docmanager.h include/docmgr/records/docinfo.h \
            include/docmgr/tools/datetime.h include/docmgr/tools/config.h \
            share/icons/hicolor/scalable/apps/docmanager.svg share/man/man1/docmanager.1; do
  [[ -e $prefix/$file ]] || fail "$file was not installed"
done
quiet "$prefix/bin/docmanager" --help
# A listing loads qpdf and libgsf only with the first PDF or OLE file, from the installed module.
! ldd "$prefix/bin/docmanager" | grep -Eq 'libqpdf|libgsf' || fail "docmanager links qpdf or libgsf itself"
quiet "$prefix/bin/docmanager-samples" "$work/samples" 5
listed=$(HOME=$work/home "$prefix/bin/docmanager" --list --columns 1,3 --format tsv "$work/samples" 2>&1)
[[ $listed == *"letter-003.pdf	Customer Survey Letter"* ]] || fail "the installed docmanager read no PDF: $listed"
# The window program is found and finds the installed library without help: with no
# display it starts and says so.
window_says=$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$prefix/bin/docmanager" 2>&1 || true)
[[ $window_says == *"no display"* ]] || fail "the window program did not start: $window_says"

command -v desktop-file-validate >/dev/null || fail "desktop-file-validate is missing (run scripts/setup)"
quiet desktop-file-validate "$prefix/share/applications/docmanager.desktop"

export PKG_CONFIG_PATH=$prefix/lib/pkgconfig
[[ $(pkg-config --modversion docmgr) == 2.1 ]] || fail "pkg-config does not find docmgr 2.1"
[[ -f $(pkg-config --variable=includedir docmgr)/docmgr/manager/docmanager.h ]] ||
  fail "pkg-config's include folder holds no docmgr/manager/docmanager.h"
[[ " $(pkg-config --libs docmgr) " == *" -ldocmgr "* ]] || fail "pkg-config does not link -ldocmgr"

launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
quiet "$cmake" -S "$source/examples/host" -B "$work/example" -G Ninja -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_PREFIX_PATH="$prefix" "${launcher[@]}"
grep -qx "DocManager_DIR:PATH=$prefix/lib/cmake/DocManager" "$work/example/CMakeCache.txt" ||
  fail "find_package took a DocManager package from outside the prefix"
quiet "$cmake" --build "$work/example"

mkdir "$work/docs" "$work/run"
echo one >"$work/docs/a.odt"
echo two >"$work/docs/b.pdf"
(cd "$work/run" && QT_QPA_PLATFORM=offscreen timeout 120 "$work/example/example-host" \
  --auto-close 200 "$work/docs" >"$work/log" 2>&1) || { cat "$work/log" >&2; fail "the example host failed"; }
# Each constructor's run kept its settings in its own file.
[[ -f $work/run/dmgdump.cfg && -f $work/run/example-host.cfg ]] ||
  fail "the example host's runs left no settings files"

# Only the public classes are exported.
internal=$(nm -D --defined-only -C "$prefix/lib/libdocmgr.so" |
  grep -Ew 'ImplDocConfig|DocRowList|DocCopyDialog|DocGroupsDialog|DocBrowser|fsutil|wildcard' || true)
[[ -z $internal ]] || fail "the library exports internal classes, e.g.
$(head -5 <<<"$internal")"
echo "install_test: passed"
