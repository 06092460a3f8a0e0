#!/bin/sh
# cli_build_test.sh COMMAND...: builds a store with varlo-cli, which COMMAND starts, and checks the site, the log and
# the exit status. When VARLO_NATIVE_CLI names another varlo-cli, it must make the same bytes.
set -u
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
. "$here/cli_checks.sh"

"$here/make_shop.sh" "$work/install"
shop=install/Projects/Toys

# The whole store, into the project's own folder.
run 0 --install install build Projects/Toys/Toys.stp
shows 'Varlo PRO v1.07.001 - Ready'
shows 'Store Build Complete. (0 errors, 0 warnings)'
[ ! -s err ] || fail 'a build without errors wrote to standard error'
for page in 1.htm 'Ball One.htm' 3.htm index.html ftmp.htm trolley.html register.html varlo.idx h1.gif img/ball.gif; do
  [ -f "$shop/Web/$page" ] || fail "there is no $page"
done
[ ! -e "$shop/Web/4.htm" ] || fail 'an item of a shelf has a page'
holds $shop/Web/varlo.idx '; v1.07'
holds $shop/Web/varlo.idx '#PBall|9.95|Ball One.htm|Projects\Toys\pictures\Ball.gif|(null)|(null)|(null)'
grep -qF 'freight="Air+%28fast%29(AU(10%,5<=0.5k,1<=1k,+7k>10k););Surface' $shop/Web/register.html ||
  fail 'the register lacks the freight expression'
grep -qF 'server="http://orders.example/order" user="toys-12"' $shop/Web/register.html || fail 'the register lacks the server'
grep -qF '02/01/03 04:05:06' $shop/Web/1.htm || fail 'the page was not dated by SOURCE_DATE_EPOCH'
grep -qF '<TITLE>Toys</TITLE>' $shop/Web/index.html || fail 'the title is missing'

# Elsewhere, with another title; again, over what is there; all the same bytes.
run 0 --install install build Projects/Toys/Toys.stp --to site/deep --title 'Other Toys'
grep -qF '<TITLE>Other Toys</TITLE>' install/site/deep/index.html || fail 'the given title is missing'
grep -qF 'Other Toys' $shop/Toys.stp && fail 'a build wrote to the project'
run 0 --install install build Projects/Toys/Toys.stp --to site/deep/ --title ''
grep -qF '<TITLE></TITLE>' install/site/deep/index.html || fail 'an empty title was not taken'
run 0 --install install build Projects/Toys/Toys.stp --to again
run 0 --install install build Projects/Toys/Toys.stp --to again
diff -r $shop/Web install/again >out || fail 'two builds differ'

# Another program makes the same bytes.
if [ -x "${VARLO_NATIVE_CLI:-}" ]; then
  "$VARLO_NATIVE_CLI" --install install build Projects/Toys/Toys.stp --to native >out 2>err || fail 'the native build failed'
  diff -r install/again install/native >out || fail 'native and Windows builds differ'
fi

# The freight expression alone.
run 0 --install install freight Projects/Toys/Toys.stp
shows 'Air+%28fast%29(AU(10%,5<=0.5k,1<=1k,+7k>10k););Surface+Mail+%283-6+Weeks%29(AU(10%,9<=0.5k););'
run 2 --install install freight Projects/Toys/Gone.stp

# One page, and one that stands on a shelf.
run 0 --install install preview Projects/Toys/Toys.stp --to preview
shows 'ftmp.htm'
[ -f install/preview/1.htm ] || fail 'the first page was not previewed'
[ ! -e install/preview/index.html ] || fail 'a preview made a front door'
run 0 --install install preview Projects/Toys/Toys.stp --at 4.htm --to preview
grep -qF 'SRC="3.htm"' install/preview/ftmp.htm || fail "the shelf's page was not previewed"
run 2 --install install preview Projects/Toys/Toys.stp --at no.htm --to preview
tells "there is no page 'no.htm'"
run 2 --install install preview Projects/Toys/Toys.stp

# The browser: not without being asked, then the one of the configuration, which may not be there.
printf '#!/bin/sh\nprintf "%%s" "$1" >"%s/opening"\nmv "%s/opening" "%s/opened"\n' "$work" "$work" "$work" >browser
chmod +x browser
printf 'browser=%s\n' "$work/browser" >install/config.ini
run 0 --install install build Projects/Toys/Toys.stp --to again
[ ! -e opened ] || fail 'the browser was opened without being asked for'
if [ -z "${VARLO_NATIVE_CLI:-}" ]; then
  # The desktop program, under Wine, writes the same configuration, with names of its own.
  for browser in "$work/browser" "Z:$(printf '%s' "$work/browser" | tr / '\\')"; do
    printf 'browser=%s\n' "$browser" >install/config.ini
    run 0 --install install build Projects/Toys/Toys.stp --to AGAIN --open
    for _ in 1 2 3 4 5 6 7 8 9 10; do
      [ ! -e opened ] || break
      sleep 1
    done
    [ "$(cat opened)" = "$work/install/again/index.html" ] || fail "$browser was not given the page's name on this machine"
    rm -f opened
  done
fi
printf 'browser=%s\n' "$work/nowhere" >install/config.ini
run 0 --install install build Projects/Toys/Toys.stp --to again --open
tells 'Browser Error: "Unable to open the specified Browser. Please check the  Preferences."'
rm install/config.ini

# What goes wrong.
run 2 --install install build Projects/Toys/Gone.stp
tells 'S103: Unable to read project file'
rm install/server.ini install/img/f.gif
run 1 --install install build Projects/Toys/Toys.stp --to poor
shows 'error: register.html: Varlo Server not defined in preferences!'
shows "error: scheme: copying schema file 'img\\f.gif'"
shows 'Store Build Complete. (2 errors, 0 warnings)'
[ -f install/poor/index.html ] || fail 'errors stopped a build'
run 1 --install install build Projects/Toys/Toys.stp --to 'a,b'
tells 'Error: Invalid Directory Name.  Must not include forward slash characters or commas.'
printf 'a file' >install/blocked
run 1 --install install build Projects/Toys/Toys.stp --to blocked/site
shows 'critical error: unable to create directory'
shows 'Build Stopped'

# What is no plain file cannot be opened, and nobody waits for it.
if [ -z "${VARLO_NATIVE_CLI:-}" ]; then
  printf 'server=http://orders.example/order\nid=toys-1234\n' >install/server.ini
  printf f >install/img/f.gif
  rm $shop/pictures/Ball.gif $shop/Template/product.htm
  mkfifo $shop/pictures/Ball.gif $shop/Template/product.htm
  run 0 --install install build Projects/Toys/Toys.stp --to piped
  shows "warning: Ball One.htm: unable to read image file: 'Projects\Toys\pictures\Ball.gif'"
  shows 'Store Build Complete. (0 errors, 1 warnings)'
  rm install/piped/1.htm
  mkfifo install/piped/1.htm
  run 0 --install install build Projects/Toys/Toys.stp --to piped
  tells 'ERROR R107: Unable to open HTML output file'
fi

ends 'varlo-cli builds stores.'
