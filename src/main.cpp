#include "mainwindow/frm_main.h"
#include "platform/forms/desktop.h"

int main(int, char** argv) {
  const forms::Desktop desktop(argv[0]);
  mill::frmMain->show();
  return QApplication::exec();
}
