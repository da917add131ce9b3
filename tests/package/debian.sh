#!/usr/bin/env bash
# Makes the Debian packages of a build, has them checked by lintian, installs them, builds the smallest host against them,
# starts the editor by the command of its desktop entry, and removes them. Leaves the machine as it was; ends with 77 where
# that cannot be tried.
#   debian.sh BUILD
set -euo pipefail

skip() { echo "Skipped: $1"; exit 77; }
fail() { echo "Failed: $1" >&2; exit 1; }

[ "$(id -u)" -eq 0 ] || skip "only root installs packages"
command -v dpkg-shlibdeps >/dev/null || skip "dpkg-dev is not installed"
command -v lintian >/dev/null || skip "lintian is not installed"
! dpkg-query -s torvane-settings >/dev/null 2>&1 || skip "the package is installed already"

work=$(mktemp -d)
cleanup() {
    [ -z "${editor:-}" ] || kill "$editor" 2>/dev/null || true
    dpkg --purge libzelcontrolcenter-dev torvane-settings >/dev/null 2>&1 || true
    rm -rf "$work"
}
trap cleanup EXIT

(cd "$1" && umask 027 && cpack -G DEB -B "$work") >/dev/null
lintian --allow-root -EIL +pedantic --fail-on error,warning,info,pedantic,experimental --tag-display-limit 0 "$work"/*.deb || fail "lintian objects"
dpkg --install --force-depends "$work"/*.deb >/dev/null

tree=/usr/lib/torvane-settings
[ -z "$(find $tree ! -perm -o=r)" ] || fail "only root can read $(find $tree ! -perm -o=r)"
[ -e $tree/bin/platforms/libqxcb.so ] || fail "there is no platform plug-in"

# What a link leads to is there without recommended packages; but folders of plug-ins may come with others.
depends=$(dpkg-query -W -f='${Depends}' torvane-settings)
while read -r link; do
    [[ $link != $tree/bin/* ]] || continue
    owner=$(dpkg-query --search "$(readlink -f "$link")") || fail "$link leads to nothing"
    owner=${owner%%:*}
    [[ $owner == torvane-settings || $depends == *"$owner"* ]] || fail "$link leads to $owner, which need not be there"
done < <(dpkg-query -L torvane-settings | xargs -I{} find {} -maxdepth 0 -type l)

for program in /usr/lib/torvane-settings/bin/torvane-settings{,-check}; do
    readelf -dlW $program | grep BIND_NOW >/dev/null && readelf -hW $program | grep "DYN (Pos" >/dev/null || fail "$program is not hardened"
done
printf 'settingsVersion=1\n' >"$work/old.ini"
torvane-settings-check "$work/old.ini" >"$work/report" && fail "the checker finds nothing"
grep -q 'needs repair' "$work/report" || fail "the checker does not run: $(cat "$work/report")"

cmake -S /usr/share/doc/libzelcontrolcenter-dev/examples/minimal -B "$work/minimal" >"$work/output" &&
    cmake --build "$work/minimal" >>"$work/output" 2>&1 || fail "the example does not build: $(cat "$work/output")"

# A package of it gets its dependency.
mkdir "$work/debian"
printf 'Source: host\n\nPackage: host\nArchitecture: any\n' >"$work/debian/control"
(cd "$work" && dpkg-shlibdeps -O minimal/torvane-minimal) >"$work/output" 2>&1 || fail "$(cat "$work/output")"
grep -q 'torvane-settings (>= 1.1.*torvane-settings (<< 1.2~)' "$work/output" || fail "no dependency: $(cat "$work/output")"

entry=/usr/share/applications/torvane-settings.desktop
read -r -a command < <(sed -n 's/^Exec=//p' $entry)
icon=$(sed -n 's/^Icon=//p' $entry)
[ -f "/usr/share/icons/hicolor/128x128/apps/$icon.png" ] || fail "no icon $icon"

export XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache XDG_RUNTIME_DIR=$work/run QT_QPA_PLATFORM=offscreen
mkdir -p -m 700 "$XDG_RUNTIME_DIR" "$XDG_CONFIG_HOME/TorvaneBoundlessX64"
printf '[General]\nsettingsVersion=2\nengine=software\nlanguage=fr\n' >"$XDG_CONFIG_HOME/TorvaneBoundlessX64/Settings.ini"
# An upgrade keeps what an administrator wrote.
defaults=/etc/torvane-settings/Defaults.ini
printf '[raytracer]\nquality=Ultra\n' >$defaults
dpkg --install --force-depends "$work"/torvane-settings_*.deb >/dev/null </dev/null
cd /
"${command[@]}" >"$work/output" 2>&1 </dev/null &
editor=$!
log=$XDG_CONFIG_HOME/TorvaneBoundlessX64/log.txt
for ((i = 0; i < 100; ++i)); do
    ! grep -q "Applied the settings" "$log" 2>/dev/null || break
    kill -0 "$editor" 2>/dev/null || fail "the editor ended: $(cat "$work/output")"
    sleep 0.1
done
grep -q "Applied the settings" "$log" || fail "the editor did not come up: $(cat "$work/output")"
grep -q "^quality=Ultra" "$XDG_CONFIG_HOME/TorvaneBoundlessX64/Settings.ini" || fail "$defaults does not count"
pkill -P "$editor" || fail "the editor was gone"
wait "$editor" 2>/dev/null || true
editor=

dpkg --purge libzelcontrolcenter-dev torvane-settings >/dev/null
for left in ${defaults%/*} /usr/lib/torvane-settings /usr/include/zel "$entry" "/usr/bin/${command[0]}"; do
    [ ! -e "$left" ] || fail "$left was left behind"
done
echo "Installed, started and removed."
