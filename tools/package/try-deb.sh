#!/usr/bin/env bash
# Builds the Debian package, looks at it, installs it, runs both programs as another user, removes it, and tells what was
# left behind.
#   tools/package/try-deb.sh              builds the preset "package" first
#   tools/package/try-deb.sh PRESET       packs the build of another preset, which must be there: release
# As root it installs into the running system and runs as "nobody"; any other user installs into a folder of its own.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

source tools/setup.sh
packages+=(dpkg-dev lintian desktop-file-utils appstream man-db groff-base)
install_packages

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  exit 1
}

preset=${1:-package}
build=build/$preset
if [[ $preset == package ]]; then configure package && build package; fi

say "packing"
rm -rf "$build/deb"
cpack --config "$build/CPackConfig.cmake" -B "$build/deb" >"$build/cpack.log" || {
  cat "$build/cpack.log"
  fail "cpack"
}
deb=$(ls "$build"/deb/*.deb)
name=$(dpkg-deb --field "$deb" Package)
say "$deb: $(du -h "$deb" | cut -f1), depends on $(dpkg-deb --field "$deb" Depends)"

scratch=$(mktemp -d)
installed=no
# Whatever happens, nothing of the trial stays.
clean() {
  [[ $installed == no ]] || dpkg --purge "$name" >/dev/null || true
  chmod -R u+w "$scratch"
  rm -rf "$scratch"
}
trap clean EXIT
chmod 755 "$scratch"

say "checking its files"
dpkg-deb --extract "$deb" "$scratch/content"
usr=$scratch/content/usr
lintian --fail-on error --allow-root "$deb"
desktop-file-validate "$usr"/share/applications/*.desktop
appstreamcli validate --no-net "$usr"/share/metainfo/*.xml
for page in "$usr"/share/man/man1/*.gz; do
  warnings=$(MANWIDTH=80 LC_ALL=C.UTF-8 man --warnings -l "$page" 2>&1 >/dev/null) || true
  [[ -z $warnings ]] || fail "$page: $warnings"
done

files_of() { find "$1" -xdev \( -type f -o -type l -o -type d \) 2>/dev/null | sort; }
home=$scratch/home
mkdir "$home"
if [[ $(id -u) -eq 0 ]]; then
  say "installing it"
  files_of /usr >"$scratch/before"
  dpkg --install "$deb" >/dev/null
  installed=yes
  bin=/usr/bin
  chown nobody "$home"
  as_user() { setpriv --reuid=nobody --regid=nogroup --clear-groups env -i HOME="$home" PATH="$bin" LC_ALL=C.UTF-8 "$@"; }
else
  say "installing it into a folder"
  mv "$scratch/content" "$scratch/root"
  chmod -R a-w "$scratch/root/usr"
  bin=$scratch/root/usr/bin
  as_user() { env -i HOME="$home" PATH="$bin" LC_ALL=C.UTF-8 "$@"; }
fi

number=K19013XP0
say "running norlaplan-cli as another user"
as_user norlaplan-cli decode $number | grep -q "$number" || fail "decode"
as_user norlaplan-cli life $number --radial 1200 --axial 300 --speed 400 >/dev/null || fail "life"
[[ -z $(ls -A "$home") ]] || fail "reading has written into the home folder"
as_user norlaplan-cli datasheet $number --output "$home/sheet.pdf" >/dev/null || fail "data sheet"
head -c 5 "$home/sheet.pdf" | grep -q '%PDF-' || fail "the data sheet is no PDF"

say "a table of the user's own"
own=$home/.local/share/norlaplan-mm
as_user "$(command -v mkdir)" -p "$own/Data Tables"
share=$(dirname "$bin")/share/norlaplan-mm
sed 's/^K19013XP0,2,190,216,/K19013XP0,2,190,217,/' "$share/Data Tables/13-X.csv" >"$own/Data Tables/13-x.csv"
as_user norlaplan-cli --json decode $number | grep -q '"outsideDiameter": *8.543' || fail "the user's table doesn't count"
rm "$own/Data Tables/13-x.csv"

say "running norlaplan as another user, without a display"
as_user norlaplan --version | grep -q 'norlaplan 1.00' || fail "norlaplan --version"
printf 'SKIP INTRO\n' >"$own/Extras.txt"
status=0
as_user QT_QPA_PLATFORM=offscreen "$(command -v timeout)" 8 "$bin/norlaplan" || status=$?
[[ $status -eq 124 ]] || fail "norlaplan ended by itself with status $status"

if [[ $installed == yes ]]; then
  say "removing it"
  dpkg --purge "$name" >/dev/null
  installed=no
  files_of /usr >"$scratch/after"
  # Caches that the desktop keeps for all programs may have been made new.
  left=$(comm -13 "$scratch/before" "$scratch/after" | grep -v -e 'icon-theme.cache$' -e 'mimeinfo.cache$' || true)
  [[ -z $left ]] || fail "left behind: $left"
fi
say "the package installs, runs and leaves nothing: $deb"
