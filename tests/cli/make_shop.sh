#!/bin/sh
# make_shop.sh FOLDER: makes an installation in FOLDER with the project Projects/Toys/Toys.stp, from which a store
# can be built without errors.
set -eu
mkdir -p "$1/template" "$1/img" "$1/Projects/Toys/Template" "$1/Projects/Toys/pictures"
cd "$1"
printf 'AU Australia\n' >domain.dat
printf 'Visa\n' >cc.dat
printf 'server=http://orders.example/order\nid=toys-1234\n' >server.ini
for picture in h1 h2 h3 f g o a add remove back; do printf '%s' "$picture" >"img/$picture.gif"; done
printf '<body bgcolor=$BGCOLOR>cart\n' >template/trolley.dat
printf 'server="$VARLO_SERVER" user="$USER" freight="$FREIGHT"\r\nform="$FORM"\r\nconfirm="$CONFIRM"\r\n' \
  >template/register.dat

cd Projects/Toys
printf '<html>$FRAME<title>$PAGETITLE</title>\r\n$INDEX$BODY $UPDATED<br>$PRODUCT\r\n' >Template/category.htm
printf '<html>$FRAME<h1>$TITLE</h1><img src="$IMAGE"><a href="$BUY">$COST</a> $BACK\r\n' >Template/product.htm
printf '<html>$TITLE<SHELF><p>$TITLE <a href="$ADD">$COST</a></SHELF>\r\n' >Template/shelf.htm
printf '<form>"$MESSAGE" $ACCEPTED_CARDS $FORMCOLOR</form>\r\n' >Template/order.htm
printf '<p>$CONFIRM</p>\r\n' >Template/confirm.htm
printf 'ball' >pictures/Ball.gif
cat >Toys.stp <<'STORE'
VERSION=107001
STITLE=Toys
CURR=$
OMESSAGE=Welcome
CMESSAGE=Thanks
CC=0:Visa
LAYOUT=Varlo Default/Default
$AU0,5,1,,,,,,,,,,7,10%|1
$AU1,,,,,,,,,,,,,10%|0
$AU2,9,,,,,,,,,,,,10%|1
FNAME=0,Air (fast)
NODE0=Home
FILE=1.htm
BODY=Welcome@@@to the shop
#BRANCH
NODE1=Ball
FILE=Ball One.htm
CODE=B1
COST=9.95
IMAGE=Projects\Toys\pictures\Ball.gif
NODE2=Shelf
FILE=3.htm
#BRANCH
NODE1=Car
FILE=4.htm
CODE=C1
COST=4.50
#EOB
#EOB
STORE
