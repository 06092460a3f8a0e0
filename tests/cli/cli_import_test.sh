#!/bin/sh
# cli_import_test.sh COMMAND...: imports lists with varlo-cli, which COMMAND starts, and checks the project, the counts
# and the exit status.
set -u
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
lists=$here/../import/lists
. "$here/cli_checks.sh"

project=install/Projects/Shop/Shop.stp
# fresh: the project that the lists are imported into.
fresh() {
  rm -rf install
  mkdir -p install/Projects/Shop install/template
  printf 'AU Australia\n' >install/domain.dat
  printf 'Visa\n' >install/cc.dat
  printf 'uid=100\n' >install/config.ini
  cp "$lists/start.stp" $project
}
# imports STATUS ARGUMENT...
imports() {
  expected=$1
  shift
  run "$expected" --install install import Projects/Shop/Shop.stp "$@"
}
# list NAME ARGUMENT...: the list becomes the expected project.
list() {
  fresh
  file=$lists/$1
  shift
  imports 0 "$file" --below 2.htm "$@"
  same $project "$lists/expected/$(basename "${file%.*}").stp"
}
# refuses WORDS ARGUMENT...: it can't be done, and nothing is changed.
refuses() {
  words=$1
  shift
  fresh
  find install -type f -exec cksum {} + | sort >before
  imports 2 "$@"
  tells "$words"
  find install -type f -exec cksum {} + | sort >after
  same before after
}

# Lists of six shapes.
list comma-quotes.csv --skip 1 \
  --columns ,,code,title,,,,meta-description,description,,,,,,,,,,weight,,,,,,,cost
list semicolon-no-last-end.csv --skip 1 --columns ,,title,,cost,code,weight,meta-keywords,field1
list semicolon-all-quoted.csv --skip 1 --columns code,title,meta-description,description,cost,,image,field2,field1
list semicolon-decimal-comma.csv --skip 1 --decimal , --columns code,cost,,,,title,field1,field2
list semicolon-latin1.csv --skip 1 --decimal , \
  --columns ',code,title,field1,cost,,,,,,,,,,,,,,,,meta-keywords,,,,description'
list bar-caret.dat --quote ^ --escape ^ --columns code,title,description,,,,cost
shows '4 record(s) have been imported.'
holds install/config.ini uid=104
cmp -s "$lists/start.stp" install/Projects/Shop/Backup/Shop.stp.1 || fail 'the import made no backup'

# The numbers go on; labels name columns as well.
imports 0 "$lists/bar-caret.dat" --quote ^ --escape ^ --columns 'Product Code,Title'
holds $project FILE=108.htm
holds install/config.ini uid=108

# An update: codes that are not there leave the exit status 1.
printf 'code;price\n14;5,50\n77;1\n15;6\n' >prices.csv
imports 1 "$work/prices.csv" --columns code,cost --decimal , --update
shows '2 record(s) have been updated.'
holds $project COST=5.50
holds $project COST=6
cp $project updated.stp
printf '14;5,50\n' >prices.csv
imports 0 "$work/prices.csv" --delimiter ';' --columns code,cost --decimal , --update
same $project updated.stp
ls install/Projects/Shop/Backup | sort >backups.before
printf '99;1\n' >prices.csv
imports 1 "$work/prices.csv" --columns code,cost --update
shows '0 record(s) have been updated.'
ls install/Projects/Shop/Backup | sort >backups.after
same backups.before backups.after

# Dialects by hand.
fresh
printf 'Ball#5\nCar#6\n' >list
imports 0 "$work/list" --delimiter '#' --columns title,cost
holds $project NODE1=Car
holds $project COST=6
printf '"Ball, red"\n' >list
imports 0 "$work/list" --delimiter '' --quote '' --columns title
holds $project 'NODE1="Ball, red"'

# Nothing to import is no error; nothing is written.
fresh
printf 'one line without an end' >list
imports 0 "$work/list" --columns title
shows '0 record(s) have been imported.'
[ ! -e install/Projects/Shop/Backup ] || fail 'nothing was imported, and the project was saved'

# Showing changes nothing, and needs no project.
fresh
run 0 --install install import Projects/Gone.stp "$lists/semicolon-latin1.csv" --show 1 --skip 1 --columns ,code
shows '4 rows, 36 columns, delimiter ;'
shows 'Row 2'
shows '  2 Product Code: 1101'
shows '  21 ???: Norge'
grep -q 'Row 3' out && fail 'more rows were shown than asked for'
imports 0 "$lists/bar-caret.dat" --quote ^ --escape ^ --show 99
shows '  2 ???: 3.5" Disk | Box of 10'
same $project "$lists/start.stp"

# What can't be done changes nothing.
refuses "there is no file 'gone.csv'" gone.csv --columns title
refuses "there is no field 'titel'; the fields are title, page-title, filename, code" "$lists/bar-caret.dat" --columns titel
refuses "the field 'cost' is on two columns" "$lists/bar-caret.dat" --columns cost,title,cost
refuses 'column 27 can carry nothing' "$lists/bar-caret.dat" --columns ,,,,,,,,,,,,,,,,,,,,,,,,,,title
refuses '--columns must tell what the columns carry' "$lists/bar-caret.dat"
refuses '--columns must tell what the columns carry' "$lists/bar-caret.dat" --columns ,,
refuses 'an update needs a column with the code' "$lists/bar-caret.dat" --columns title --update
refuses "there is no page 'no.htm'" "$lists/bar-caret.dat" --columns title --below no.htm
refuses '' "$lists/bar-caret.dat" --columns code --below 2.htm --update
refuses '' "$lists/bar-caret.dat" --columns title --skip -1
fresh
imports 0 "$lists/bar-caret.dat" --columns title --below 2.htm
imports 2 "$lists/bar-caret.dat" --columns title --below 101.htm
tells "the page '101.htm' is that of a product, which holds no others"
run 2 --install install import Projects/Shop/Gone.stp "$lists/bar-caret.dat" --columns title
tells 'S103: Unable to read project file'

# An old project is not renewed for an import that can't be done.
fresh
mkdir install/Projects/Shop/Template
printf 'NODE0=Old\nFILE=1.htm\n' >$project
printf 'mine' >install/Projects/Shop/Template/order.htm
imports 2 "$lists/bar-caret.dat" --columns title --below no.htm
[ "$(cat install/Projects/Shop/Template/order.htm)" = mine ] || fail 'a template was renewed'

ends 'varlo-cli imports lists.'
