// The page's part of the cart. The add and remove links of a page call the register frame directly, which
// a browser refuses between pages opened from disk, and which an apostrophe in a title breaks. So a click
// on such a link is taken here, read as text, and sent to the register frame as a message.
(function () {
  'use strict';
  if (parent === window) return;
  var local = location.protocol === 'file:';
  var link = 'javascript:parent.shopregister.';
  var registerIsUp = false, waiting = [], toast = null, toastTimer = 0;

  function register() { return parent.frames['shopregister']; }
  function post(message) {
    if (register()) register().postMessage(message, local ? '*' : location.origin);
  }

  // addItem('page','code','title','price','image',1,weight,freight,tax): the numbers are cut off the end and
  // the quoted texts are parted at "','". What is too much belongs to the title. Null when it does not fit.
  function readAdd(text) {
    var cut = text.lastIndexOf("',1,"), quoted, numbers, last;
    if (cut < 0 || text[0] !== "'") return null;
    quoted = text.slice(1, cut).split("','");
    numbers = text.slice(cut + 4).split(',');
    last = quoted.length - 1;
    if (last < 4 || numbers.length !== 3) return null;
    return [quoted[0], quoted[1], quoted.slice(2, last - 1).join("','"), quoted[last - 1], quoted[last], 1].concat(numbers);
  }

  // The message for a link's address; null for any other link.
  function messageOf(address) {
    var call, open, end, name, inner, args;
    if (!address || address.indexOf(link) !== 0) return null;
    call = address.slice(link.length);
    open = call.indexOf('(');
    end = call.lastIndexOf(')');
    if (open < 0 || end < open) return null;
    name = call.slice(0, open);
    inner = call.slice(open + 1, end);
    if (name === 'removeItem') return { shop: 'remove', args: [inner.slice(1, -1)] };
    args = name === 'addItem' ? readAdd(inner) : null;
    return args && { shop: 'add', args: args };
  }

  // A short word at the foot of the page, for eyes that are on the button and not on the cart.
  function tell(words) {
    if (!toast) {
      toast = document.createElement('div');
      toast.setAttribute('role', 'status');
      toast.style.cssText = 'position:fixed;left:50%;bottom:20px;transform:translateX(-50%);max-width:90%;padding:10px 18px;' +
        'border-radius:8px;background:#222;color:white;font:15px/1.3 "Segoe UI",Roboto,Helvetica,Arial,sans-serif;' +
        'box-shadow:0 4px 16px rgba(0,0,0,.3);z-index:1000;pointer-events:none';   // a button below it still works
      document.body.append(toast);
    }
    toast.hidden = false;
    toast.textContent = words;
    clearTimeout(toastTimer);
    toastTimer = setTimeout(function () { toast.hidden = true; }, 2500);
  }

  // A remove link is of use only while its item is in the cart.
  function showRemoveLinks(items) {
    Array.prototype.forEach.call(document.querySelectorAll('a[href^="' + link + 'removeItem("]'), function (anchor) {
      var key = messageOf(anchor.getAttribute('href')).args[0];
      anchor.style.visibility = items.some(function (item) { return item.key === key; }) ? '' : 'hidden';
    });
  }

  document.addEventListener('click', function (event) {
    var anchor = event.target.closest && event.target.closest('a[href],area[href]');
    var message = anchor && messageOf(anchor.getAttribute('href'));
    if (!message) return;
    event.preventDefault();
    if (registerIsUp) post(message); else waiting.push(message);
  }, true);

  addEventListener('message', function (event) {
    var told = event.data || {};
    if (event.source !== register() || (!local && event.origin !== location.origin)) return;
    if (told.shop === 'up') {
      registerIsUp = true;
      waiting.splice(0).forEach(post);
    }
    if (told.shop !== 'cart') return;
    if (told.view.said) tell(told.view.said);
    showRemoveLinks(told.view.items);
  });
  // A customer who clicks and goes on at once keeps the item if the register frame is there.
  addEventListener('pagehide', function () { waiting.splice(0).forEach(post); });

  // Once the page is there as a whole, so that the answer finds all its links.
  function hello() { post({ shop: 'hello' }); }
  if (document.readyState === 'loading') document.addEventListener('DOMContentLoaded', hello); else hello();
})();
