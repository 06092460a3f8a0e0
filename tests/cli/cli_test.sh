#!/bin/sh
# cli_test.sh COMMAND...: drives varlo-cli, which COMMAND starts, through its commands in a folder of its
# own, and checks exit status, output and files.
set -u
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
. "$here/cli_checks.sh"

mkdir -p install/template install/Projects
printf 'AU Australia\n' >install/domain.dat
printf 'Visa\n' >install/cc.dat
printf 'order form\n' >install/template/order.dat
printf 'confirmation\n' >install/template/confirm.dat

# Wrong usage.
run 2
run 2 dump
run 2 nonsense
run 2 --install nowhere dump a.stp
run 0 --help
shows resave

# A new project.
run 0 --install install new Shop --title 'My Shop'
project=install/Projects/Shop/Shop.stp
holds $project TIME=1044072306
holds $project 'NODE0=My Shop'
holds $project FILE=1.htm
holds $project 'STITLE=My Shop'
holds install/config.ini uid=1
cmp -s install/template/order.dat install/Projects/Shop/Template/order.htm || fail 'the order form was not copied'
cp $project first.stp
run 2 --install install new Shop --title Other
tells 'exists already'
same $project first.stp
run 2 --install install new a/b --title Other
tells 'Error: Invalid Project Name.  The name must not include forward/back slash characters or commas.'
run 2 --install install new Other --title T --scheme No/Such
tells 'there is no scheme'
run 0 --install install new Other --title Other --scheme 'Varlo Default/Default'
holds install/Projects/Other/Other.stp 'LAYOUT=Varlo Default/Default'

# Rewriting.
run 0 --install install resave Projects/Shop/Shop.stp
same $project first.stp
same install/Projects/Shop/Backup/Shop.stp.1 first.stp
run 0 --install install resave Projects/Shop/Shop.stp --output copy.stp
same install/copy.stp first.stp
run 2 --install install resave Projects/Shop/Gone.stp
tells "S103: Unable to read project file"
run 2 --install install resave Projects/Shop/Shop.stp --output none/copy.stp
tells 'Error: S101: File Write Error'

# An old project is shown, and written elsewhere, without being touched.
mkdir -p old/Template
printf 'NODE0=Old\nCOST=\nTEMP=\351\n' >old/old.stp
printf 'mine' >old/Template/order.htm
run 0 --install install dump "$work/old/old.stp"
tells 'Project Upgrade: Your project was saved with an older version of Varlo PRO.'
shows '"title":"Old","cost":"","templateName":"é"'
run 0 --install install resave "$work/old/old.stp" --output out.stp
holds install/out.stp VERSION=107001
[ "$(cat old/Template/order.htm)" = mine ] || fail 'a template was renewed'
[ "$(ls old/Template)" = order.htm ] || fail 'a template was added'
grep -q VERSION old/old.stp && fail 'the old project was rewritten'

# Merging, with a backup of what was there.
run 0 --install install merge Projects/Shop/Shop.stp Projects/Other/Other.stp --at nowhere.htm
holds $project 'NODE0=Other'
cmp -s first.stp install/Projects/Shop/Backup/Shop.stp.1 || fail 'the merge made no backup'
run 2 --install install merge Projects/Shop/Shop.stp Projects/Gone.stp
tells "S105: Unable to read project file"

# A template of the other project whose name leads out of its folder, and a name of a project that does.
mkdir -p a/b/c/Template
printf 'VERSION=107001\nNODE0=Evil\nTEMP=..\\..\\..\\upgrade.new\n' >a/b/c/evil.stp
printf evil >a/upgrade.new
run 0 --install install merge Projects/Other/Other.stp "$work/a/b/c/evil.stp"
holds install/Projects/Other/Other.stp 'TEMP=..\..\..\upgrade.new'
[ -e install/upgrade.new ] && fail 'a merge wrote into the installation'
run 2 --install install new .. --title Other
tells 'Error: Invalid Project Name.'
[ -e install/Web ] && fail 'a new project was made in the installation'

# Freight tables.
printf '$au0,5,1,,,,,,,,,,,7,|1\nRULE=0,free\nFNAME=0,Bike\n' >install/tables.stp
run 0 --install install import-freight Projects/Shop/Shop.stp tables.stp
holds $project '$AU0,5,1,,,,,,,,,,,,|1'
holds $project 'RULE=0,free'
holds $project 'FNAME=0,Bike'

# Backups.
run 0 --install install backups Projects/Shop/Shop.stp
shows '1	01/02/03 04:05:06'
shows 'Shop.stp.2'
run 0 --install install restore Projects/Shop/Shop.stp 2
same $project first.stp
run 2 --install install restore Projects/Shop/Shop.stp 7
tells 'there is no backup 7'

# A disk that takes no more, which a limit on the size of files stands in for. Wine's own files must not meet it.
if [ $# -eq 0 ]; then
  mkdir -p full/Template
  { echo VERSION=107001; for i in $(seq 400); do printf 'NODE0=%s\nDESC=%0300d\n' "$i" 0; done; } >full/full.stp
  cp full/full.stp whole.stp
  limited() (
    trap '' XFSZ
    ulimit -f 80
    exec "$work/start" "$@"
  )
  cli=limited
  run 2 --install install resave "$work/full/full.stp" --output cut.stp
  tells "cut.stp' could not be written completely."
  same full/full.stp whole.stp
  run 2 --install install resave "$work/full/full.stp"
  tells "full.stp' could not be written completely."
  cli=$work/start
fi

# What is missing in the installation is told and does not stop a command.
run 0 dump "$work/$project"
tells "Error: ERROR W106: Unable to Load Domains List 'domain.dat'"
tells "Error: ERROR W107: Unable to open credit card list file 'cc.dat'"

ends 'varlo-cli does what it says.'
