# shellcheck shell=bash
# The same without windows: as a Windows program and natively on Linux. What the error boxes said
# (scene languages) stands there too.
# shellcheck disable=SC2154
for language in "${languages[@]}"; do
    wine "$bin/pipebench.exe" --console --language "$language" 2>/dev/null | tr -d '\r' >"$out/$language-windows.txt"
    "$linux" --language "$language" >"$out/$language-linux.txt"
    diff "$out/$language-windows.txt" "$out/$language-linux.txt" ||
        fail "the two print different texts ('$language')"
    [ ! -e "$scratch/$language-box" ] || grep -qF "$(cat "$scratch/$language-box")" "$out/$language-linux.txt" ||
        fail "the error box and the console mode say different things ('$language')"
    say "    $language: $(wc -l <"$out/$language-linux.txt") lines, the same in both"
done
cat "$out/de-linux.txt"
