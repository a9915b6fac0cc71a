#!/usr/bin/env bash
# pkgconfig.sh LIBDIR COMPILER SOURCE PROGRAM: builds and runs a host with the flags that pkg-config gives.
set -euo pipefail

export PKG_CONFIG_PATH=$1/pkgconfig
read -ra flags < <(pkg-config --cflags --libs vorlane-headless)
"$2" -std=c++20 "$3" -o "$4" "${flags[@]}" "-Wl,-rpath,$1"
"$4"
for library in "$PKG_CONFIG_PATH"/*.pc; do
    pkg-config --print-errors --exists "$(basename "$library" .pc)"
done
