#include "mainwindow/frm_main.h"
#include "platform/forms/application.h"

int main(int, char** argv) {
  const forms::Desktop desktop(argv[0]);
  return forms::App.run(mill::frmMain);
}
