#include "jsmacros.h"

#include "platform/dialogparts.h"
#include "platform/texteditview.h"

namespace zt {

namespace {

// A greeting that remembers the last visit in two cookies kept for expDays days:
// the first script goes into the head, the second where the greeting should stand.
const char* const kLastVisit = R"js(<script language="JavaScript">
var expDays = 30;
function readCookie(name) {
  var parts = document.cookie.split("; ");
  for (var i = 0; i < parts.length; i++) {
    var pair = parts[i].split("=");
    if (pair[0] == name) return unescape(pair[1]);
  }
  return null;
}
function writeCookie(name, value) {
  var expires = new Date();
  expires.setTime(expires.getTime() + expDays * 24 * 60 * 60 * 1000);
  document.cookie = name + "=" + escape(value) + "; expires=" + expires.toGMTString();
}
function lastVisit() {
  var when = readCookie("WWhenH");
  var count = Number(readCookie("WWHCount") || 0) + 1;
  writeCookie("WWhenH", new Date().toLocaleString());
  writeCookie("WWHCount", count);
  if (when == null) return "This is your 1st visit to our page";
  return "Welcome back. Your last visit was on " + when;
}
</script>

<script language="JavaScript">
document.write(lastVisit());
</script>)js";

// A heading that flies in from the left and stands up straight when it arrives.
const char* const kFlyingBanner =
    R"js(<h2 id="flyin" style="position: relative; left: -400px; font-style: italic">Welcome!</h2>
<script language="JavaScript">
function flyIn() {
  var banner = document.getElementById("flyin");
  var left = parseInt(banner.style.left) + 20;
  if (left < 0) {
    banner.style.left = left + "px";
    setTimeout(flyIn, 50);
  } else {
    banner.style.left = "0px";
    banner.style.fontStyle = "normal";
  }
}
setTimeout(flyIn, 50);
</script>)js";

// A button that shows the time, also in the status line; a click tells how long the
// visitor has been on the page.
const char* const kButtonClock = R"js(<form name="form">
<input type="button" name="clock" value="" onclick="timeSpent()">
</form>
<script language="JavaScript">
var arrived = new Date();
function tick() {
  var now = new Date().toLocaleTimeString();
  document.form.clock.value = now;
  window.status = now;
  setTimeout(tick, 1000);
}
function timeSpent() {
  var seconds = Math.round((new Date() - arrived) / 1000);
  alert("You have been on this page for " + seconds + " seconds.");
}
tick();
</script>)js";

QString withBreaks(const char* script) {
    return QString::fromLatin1(script).replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

} // namespace

JSMacros::JSMacros(FormRegistry& forms) : Form(forms) {
    auto* window =
        new DialogWindow(QStringLiteral("JSMacros"),
                         QStringLiteral("JavaScript Scripts - Add to your page directly"));
    setWindow(window);
    layOut(window, {
                       // control, caption, default, place
                       {memo("txtLastVisit", ui.txtLastVisit, ui.txtLastVisitView),
                        "Last visit (the first script in the head, the second in the body):",
                        withBreaks(kLastVisit), Place::Line},
                       {memo("txtFlyingBanner", ui.txtFlyingBanner, ui.txtFlyingBannerView),
                        "Flying banner:", withBreaks(kFlyingBanner), Place::Line},
                       {memo("txtButtonClock", ui.txtButtonClock, ui.txtButtonClockView),
                        "Button clock:", withBreaks(kButtonClock), Place::Line},
                       {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
                       {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
                   });
}

JSMacros::~JSMacros() = default;

} // namespace zt
