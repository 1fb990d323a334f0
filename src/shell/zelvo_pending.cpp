// The entry points of commands whose work arrives with later parts of the
// program. Each is wired to its menu item or key already and does nothing yet;
// a command leaves this file when it is built.
#include "zelvo.h"

namespace zt {

void Zelvo::mnuPreview() {}
void Zelvo::mnuPageSetup() {}
void Zelvo::mnuPrint() {}
void Zelvo::mnuViewPreview() {}
void Zelvo::mnuColourPicker() {}
void Zelvo::mnuMetaGen() {}
void Zelvo::mnuEditProperties() {}
void Zelvo::mnuFont() {}
void Zelvo::mnuPageTitle() {}
void Zelvo::mnuRectangularBox() {}
void Zelvo::mnuSpell() {}
void Zelvo::mnuPreventRightClick() {}
void Zelvo::mnuDisImgTbar() {}
void Zelvo::mnuProtectText() {}
void Zelvo::mnuText() {}
void Zelvo::mnuMarquee() {}
void Zelvo::mnuInsLayer() {}
void Zelvo::mnuFlash() {}
void Zelvo::mnuMakeDefault() {}
void Zelvo::mnuBookmarkPage() {}
void Zelvo::mnuChangePointer() {}
void Zelvo::mnuFTPClient() {}
void Zelvo::mnuPlugIn() {}
void Zelvo::mnuHTMLtutorial() {}
void Zelvo::mnuTipOfDay() {}
void Zelvo::mnuAuthorOnline() {}
void Zelvo::mnuAbout() {}

} // namespace zt
