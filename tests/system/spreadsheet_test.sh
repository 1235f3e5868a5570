#!/usr/bin/env bash
# A spreadsheet program changes nothing: a library that LibreOffice Calc opens and saves has the same
# scales afterwards, and the checker finds in it what it found before. Calc runs in English and in German, and opens
# the file as it proposes to, with a search for dates and fractions, and with each column as a text.
# Saved in the ways that README warns of, the file is told to be so.
# usage: spreadsheet_test.sh CHECKER LIBRARY
# Ends with 77 where there is no Calc.
set -euo pipefail
checker=$(realpath "$1")
library=$(realpath "$2")
calc=$(command -v soffice) || { echo "skipped: there is no soffice"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAILED: $*"; exit 1; }

# Names that Calc takes for dates, in English and in German: they prove that it does what is said here.
notes=$(sed -n 3p "$library" | tr -d '\r' | cut -d, -f3-)
cp "$library" "$work/scales.csv"
printf 'Bank,Scale\n\nProof,6/9,%s\nProof,3. Mai,%s\n' "$notes" "$notes" >"$work/proof.csv"

# open_and_save LANGUAGE OPENING SAVING: both files, with a Calc of that language. The settings are as
# Calc counts them: separator, quotation mark, UTF-8 (76), first line, columns, language of the file,
# texts in quotation marks, special numbers; saving has "as shown" besides.
open_and_save() {
  local settings=$work/$1/user
  mkdir -p "$settings"
  rm -rf "$work/saved"
  cat >"$settings/registrymodifications.xcu" <<END
<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry"><item oor:path="/org.openoffice.Setup/L10N">
<prop oor:name="ooSetupSystemLocale" oor:op="fuse"><value>$1</value></prop></item></oor:items>
END
  "$calc" "-env:UserInstallation=file://$work/$1" --headless --infilter="CSV:$2" \
    --convert-to "csv:Text - txt - csv (StarCalc):$3" --outdir "$work/saved" \
    "$work/scales.csv" "$work/proof.csv" >"$work/log" 2>&1 || fail "$(cat "$work/log")"
}

# Without the headings, to which Calc adds commas, and whether or not the last line has an end.
scales() { tail -n +3 "$1" | tr -d '\r' | grep ''; }
findings() { cd "$1" && "$checker" scales.csv || true; }
has() { grep -q "^Proof,$1,TRUE," "$work/saved/proof.csv"; }

texts=$(seq -s / -f '%g/2' 14)
no_quotes=44,34,76,1,,0,false,true,true
for language in en-US de-DE; do
  for opening in "proposed,,0,false,false" "special numbers,,0,false,true" "texts,$texts,0,false,false"; do
    name="$language, ${opening%%,*}"
    open_and_save "$language" "44,34,76,1,${opening#*,}" $no_quotes
    diff <(scales "$library") <(scales "$work/saved/scales.csv") || fail "$name: other scales"
    diff <(findings "$work") <(findings "$work/saved") || fail "$name: other findings"
    case $name in
      "en-US, special numbers") ! has 6/9 || fail "$name: 6/9 is no date" ;;
      "de-DE, special numbers") ! has "3\. Mai" || fail "$name: 3. Mai is no date" ;;
      *) has 6/9 && has "3\. Mai" || fail "$name: $(cat "$work/saved/proof.csv")" ;;
    esac
  done
done

# German, told that the file is English: TRUE and FALSE are taken for values, and saved in German.
open_and_save de-DE 44,34,76,1,,1033,false,true 59,34,76,1,,0,true,true,true
found=$(findings "$work/saved")
for fault in "error: found semicolons" "warning: found quotation marks around" 'warning: found "WAHR" and "FALSCH"'; do
  grep -qF "scales.csv: $fault" <<<"$found" || fail "it does not tell \"$fault\": $found"
done
echo "Opened and saved in two languages."
