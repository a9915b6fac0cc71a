#!/usr/bin/env bash
# symbols.sh LIBDIR: the shared libraries show the namespace vorlane and nothing else; the core, the entry points as well.
set -euo pipefail

shown() { # the names that a library defines for others, without their arguments
    # c++filt leaves accented names as they are.
    nm --dynamic --defined-only --format=posix "$1" | cut -d ' ' -f 1 | c++filt --no-params
}

for library in "$1"/libvorlane-*.so; do
    if shown "$library" | grep -vE '^(.* (for|to) )?vorlane::|^_ZNK?7vorlane|^Dll'; then
        echo "$library shows what is not the library's own"
        exit 1
    fi
done
diff <(shown "$1/libvorlane-core.so" | grep '^Dll' | sort) - <<'END'
DllCanUnloadNow
DllGetClassObject
DllRegisterServer
DllUnregisterServer
END
