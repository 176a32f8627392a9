#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing Penwick need.
# Quiet and idempotent: packages already present are skipped, and the package
# index is refreshed at most once per run, only when something is missing.
set -euo pipefail

packages=(
  build-essential
  cmake
  ninja-build
  pkg-config
  qt6-base-dev
  qt6-base-dev-tools
  qt6-tools-dev
  qt6-tools-dev-tools
  qt6-l10n-tools
  qt6-translations-l10n
  libcrypt-dev
  libbenchmark-dev
  libplist-dev
  libcsv-dev
  libofx-dev
  poppler-utils
  desktop-file-utils
  appstream
  scdoc
  zsh
  fish
  shared-mime-info
  xvfb
  xauth
  x11-utils
  libqt6svg6
  fonts-droid-fallback
  dbus-daemon
  libglib2.0-bin
  dpkg-dev
  file
  lintian
)

missing=()
for p in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null || true)
  [[ "$status" == "install ok installed" ]] || missing+=("$p")
done

[[ ${#missing[@]} -eq 0 ]] && exit 0

if [[ $(id -u) -ne 0 ]]; then
  if command -v sudo >/dev/null 2>&1; then
    sudo=sudo
  else
    echo "install-deps: missing packages ${missing[*]}; run as root to install them" >&2
    exit 1
  fi
else
  sudo=
fi

echo "install-deps: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
