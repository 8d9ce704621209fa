#!/usr/bin/env bash
# tools/screen.py package_test.sh SOURCE_FOLDER SCRATCH_FOLDER: packs the sources and makes the Debian package from
# that archive. Then it runs the system's own checkers on the package, unpacks it into an empty root, and starts
# the program there. A missing checker fails the test.
set -Eeuo pipefail
source=$(cd "$1" && pwd)
scratch=$2
trap 'echo "FAILED: $BASH_COMMAND (line $LINENO)" >&2' ERR

fail() { echo "FAILED: $*" >&2; exit 1; }

rm -rf "$scratch"
mkdir -p "$scratch"
cd "$scratch"

# --- the source archive, and the package built from it, as someone who has nothing else would ---

cmake -S "$source" -B configured -G Ninja --log-level=ERROR -DBUILD_TESTING=OFF >/dev/null
(cd configured && cpack --config CPackSourceConfig.cmake -B "$scratch/archive" >/dev/null)
tar -tf archive/*.tar.xz >archive.list
! grep -E '/(\.git|build[^/]*|__pycache__)/' archive.list || fail "the source archive holds what is no source"
mkdir unpacked
tar -xf archive/*.tar.xz -C unpacked --strip-components=1

# Built with a umask that must not show in the package.
(
    umask 027
    cmake -S unpacked -B release -G Ninja --log-level=ERROR -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF
    cmake --build release --target all -- -j2 >build.log 2>&1 || { cat build.log; exit 1; }
    cd release
    cpack -G DEB -B "$scratch/packages" >../cpack.log 2>&1 || { cat ../cpack.log; exit 1; }
)
deb=$(echo "$scratch"/packages/*.deb)
lintian --allow-root --fail-on error,warning "$deb"

# --- the installed tree ---

root=$scratch/root
dpkg-deb -x "$deb" "$root"
program_folder=$root/usr/lib/NorvoEditDat
id=example.norvo.EditDat
for path in usr/lib/NorvoEditDat/{NorvoEditDat.dat,timezones.dat,countries.txt,areas.txt} \
    usr/share/icons/hicolor/{16x16,32x32,48x48,256x256}/apps/$id.png \
    usr/share/icons/hicolor/scalable/apps/$id.svg \
    usr/share/doc/norvo-edit-dat/{README.md,share/Help/main.png,docs/dark.png,copyright,changelog.gz}; do
    [ -s "$root/$path" ] || fail "$path is not in the package"
done
for program in NorvoEditDat NorvoCheckDat; do
    [ "$(readlink "$root/usr/bin/$program")" = "../lib/NorvoEditDat/$program" ] ||
        fail "the link in bin is not the relative one to $program"
    gunzip -c "$root/usr/share/man/man1/$program.1.gz" >"$program.1"
    mandoc -Tlint -W warning "$program.1"
done
! grep -q -a -e "$scratch" -e "$source" "$program_folder/NorvoEditDat" ||
    fail "the program names a folder of the machine it was built on"
desktop-file-validate "$root/usr/share/applications/$id.desktop"
appstreamcli validate --no-net "$root/usr/share/metainfo/$id.metainfo.xml"

# --- the program, started from its link ---

mkdir -m 700 home
# Without a message bus of its own Qt would start one, which leaves files in the home folder.
clean=(env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 HOME="$scratch/home" DISPLAY="$DISPLAY" QT_QPA_PLATFORM=xcb
    DBUS_SESSION_BUS_ADDRESS=disabled:)

# The window gets this title only after the program has read the specification and built the form from it.
title="Time zones"
(cd home && exec "${clean[@]}" "$root/usr/bin/NorvoEditDat" /t "$title" "$program_folder/timezones.dat" \
    2>../program.log) &
pid=$!
trap 'kill "$pid" || true; wait' EXIT
# A search fails when a window closes during it.
for ((try = 0; try < 600; ++try)); do
    windows=$(xdotool search --onlyvisible --all --pid "$pid" --name '.' 2>/dev/null) && break
    sleep 0.5
done
[ -n "$windows" ] || { cat program.log; fail "the program shows no window"; }
# There must be no other window: a message box would be a second one, or have the same title.
[ "$(wc -l <<<"$windows")" -eq 1 ] || fail "the program shows more than one window"
properties=$(xprop -id "$windows" WM_NAME _NET_WM_WINDOW_TYPE)
[[ $properties == *"\"$title\""* && $properties != *_TYPE_DIALOG* ]] || fail "not the main window: $properties"
kill -0 "$pid" || fail "the program has ended by itself"
[ -z "$(find home -type f)" ] || fail "the program has left files behind: $(find home -type f)"
"$root/usr/bin/NorvoCheckDat" "$program_folder"/{NorvoEditDat,timezones}.dat

echo "The package is well made: $(basename "$deb")"
