// The entry points of commands whose work arrives with later parts of the
// program. Each is wired to its menu item or key already and does nothing yet;
// a command leaves this file when it is built.
#include "tessara.h"

namespace zt {

void Tessara::mnuPrev() {}
void Tessara::mnuPrevIE() {}
void Tessara::mnuPageSetup() {}
void Tessara::mnuPrint() {}
void Tessara::mnuPreview() {}
void Tessara::mnuColourPicker() {}
void Tessara::mnuMetaGen() {}
void Tessara::mnuInsRectBox() {}
void Tessara::mnuPageTitle() {}
void Tessara::mnuPageProps() {}
void Tessara::mnuSpellCheck() {}
void Tessara::mnuRightClick() {}
void Tessara::mnuDisableIEToolbar() {}
void Tessara::mnuPrevTextSel() {}
void Tessara::mnuText() {}
void Tessara::mnuMarquee() {}
void Tessara::mnuInsLayer() {}
void Tessara::mnuFlash() {}
void Tessara::mnuStripHTML() {}
void Tessara::mnuFTPClient() {}
void Tessara::mnuFileViewer() {}
void Tessara::mnuPlugIn() {}
void Tessara::mnuHTMLtutor() {}
void Tessara::mnuTips() {}
void Tessara::mnuVisitAuthor() {}
void Tessara::mnuAbout() {}

} // namespace zt
