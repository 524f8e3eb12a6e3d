#!/usr/bin/env bash
# Installs the Debian packages that Velmora builds and runs with, when any is missing.
# Safe to run again: it asks apt only for what dpkg does not already have.
set -euo pipefail
# fonts-wqy-microhei: device and sender names in Chinese (the emulated fleet has some).
# libexpat1-dev, libpugixml-dev: only the answer reading benchmark, as bare parsers to compare with.
packages=(
  build-essential cmake ninja-build pkg-config ccache clang libclang-rt-14-dev
  qtbase5-dev libqt5svg5-dev qttools5-dev qttools5-dev-tools
  libboost-thread-dev libboost-system-dev libcjson-dev rapidjson-dev liblog4cxx-dev
  libxml2-dev libcurl4-openssl-dev libcpp-httplib-dev libgtest-dev libgmock-dev
  libbenchmark-dev libexpat1-dev libpugixml-dev valgrind xvfb xauth fonts-dejavu-core fonts-wqy-microhei ieee-data
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi
echo "Installing: ${missing[*]}"
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
