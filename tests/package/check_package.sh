#!/usr/bin/env bash
# check_package.sh BUILD_DIR VERSION: packs BUILD_DIR into the Debian package
# and checks it as Debian would see it.
set -euo pipefail
export LC_ALL=C.UTF-8
build=$1 version=$2
work=$build/package-check
rm -rf "$work"
mkdir -p "$work"

cpack --config "$build/CPackConfig.cmake" -B "$work" >"$work/cpack.log" 2>&1 ||
  { cat "$work/cpack.log"; exit 1; }
deb=$work/penwick_${version}_$(dpkg --print-architecture).deb
[[ -f $deb ]] || { echo "no $deb:"; ls "$work"; exit 1; }

fail() { echo "FAIL: $*" >&2; exit 1; }

# Every file with its mode, owned by root; directories follow from them.
expected="-rwxr-xr-x ./usr/bin/penwick
-rwxr-xr-x ./usr/bin/penwickctl
-rw-r--r-- ./usr/share/applications/org.penwick.Penwick.desktop
-rw-r--r-- ./usr/share/bash-completion/completions/penwickctl
-rw-r--r-- ./usr/share/dbus-1/services/org.penwick.Penwick.Search.service
-rw-r--r-- ./usr/share/doc/penwick/changelog.gz
-rw-r--r-- ./usr/share/doc/penwick/copyright
-rw-r--r-- ./usr/share/fish/vendor_completions.d/penwickctl.fish
-rw-r--r-- ./usr/share/gnome-shell/search-providers/org.penwick.Penwick.search-provider.ini
-rw-r--r-- ./usr/share/icons/hicolor/scalable/apps/org.penwick.Penwick.svg
-rw-r--r-- ./usr/share/krunner/dbusplugins/org.penwick.Penwick.desktop
-rw-r--r-- ./usr/share/man/man1/penwick.1.gz
-rw-r--r-- ./usr/share/man/man1/penwickctl.1.gz
-rw-r--r-- ./usr/share/metainfo/org.penwick.Penwick.metainfo.xml
-rw-r--r-- ./usr/share/mime/packages/org.penwick.Penwick.xml
-rw-r--r-- ./usr/share/zsh/vendor-completions/_penwickctl"
actual=$(dpkg-deb --contents "$deb" | awk '$1 !~ /^d/ { print $1, $6 }' | sort)
diff <(sort <<<"$expected") <(echo "$actual") || fail "the package holds other files than these"
dpkg-deb --contents "$deb" | awk '$2 != "root/root" { bad = 1; print } END { exit bad }' ||
  fail "files not owned by root"

# dpkg-shlibdeps found the libraries; the plugins Qt loads are named by hand.
depends=$(dpkg-deb --field "$deb" Depends)
for dependency in libqt6widgets6 libqt6dbus6 libplist3 qt6-qpa-plugins libqt6svg6; do
  [[ $depends == *"$dependency"* ]] || fail "Depends lacks $dependency: $depends"
done

# Lintian's errors and warnings fail the package; its notes (such as a build
# tree made without all of Debian's hardening flags) do not.
if command -v lintian >/dev/null; then
  status=0
  verdict=$(lintian --fail-on error,warning "$deb" 2>&1) || status=$?
  grep -v 'running with root privileges' <<<"$verdict" || true
  [[ $status -eq 0 ]] || fail "lintian"
else
  echo "lintian is not installed: not run"
fi

# Installed into a scratch root by an unprivileged dpkg, the programs run.
root=$work/root
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
touch "$root/var/lib/dpkg/status"
PATH=$PATH:/usr/sbin:/sbin dpkg --root="$root" --log=/dev/null --force-not-root --force-depends \
  --install "$deb" >"$work/dpkg.log" 2>&1 || { cat "$work/dpkg.log"; fail "dpkg --install"; }
[[ $(dpkg-query --root="$root" --showformat='${Status} ${Version}' --show penwick) \
   == "install ok installed $version" ]] || fail "dpkg does not list penwick $version as installed"
for program in penwick penwickctl; do
  file --brief "$root/usr/bin/$program" | grep -q '^ELF.*, stripped' ||
    fail "$program was not installed, or not stripped"
done
help=$("$root/usr/bin/penwickctl" --help) || fail "penwickctl --help failed"
[[ $help == *$'\nCommands:\n'* ]] || fail "penwickctl --help lists no commands: $help"
grep -qx 'Exec=/usr/bin/penwick --background' \
  "$root/usr/share/dbus-1/services/org.penwick.Penwick.Search.service" ||
  fail "the search's service does not start /usr/bin/penwick"
echo "$(basename "$deb"): $(stat -c %s "$deb") bytes"
