#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>

// What the program's start is compared with: the same widgets at the same places, in the same style
// and fonts, and a white picture. Nothing is computed and nothing is behind the widgets.

namespace {

class Picture : public QWidget {
 public:
  Picture(QWidget* parent, const QRect& place)
      : QWidget(parent), image_(place.size() - QSize(2, 2), QImage::Format_RGB32) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    image_.fill(Qt::white);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Dark));
    painter.drawImage(1, 1, image_);
  }

 private:
  QImage image_;
};

void Place(QWidget* widget, const QRect& place, bool shown, int fontPixels = 11) {
  QFont font("Times New Roman");
  font.setStyleHint(QFont::Serif);
  font.setPixelSize(fontPixels);
  widget->setFont(font);
  widget->setGeometry(place);
  widget->setVisible(shown);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  QApplication::setPalette(QColor(239, 239, 239));
  const QSize screen = QApplication::primaryScreen()->geometry().size();

  QMainWindow window;
  window.setWindowTitle("bare window");
  auto* client = new QWidget(&window);
  window.setCentralWidget(client);
  window.menuBar()->addAction("&back");
  QMenu* cases = window.menuBar()->addMenu("&CASES");
  for (const char* flag : {"&RADIUS OF CURVATURE", "&GUESS A FORCE"}) {
    cases->addAction(flag)->setCheckable(true);
  }
  for (const char* item : {"&TIME DEPENDENT", "&STOP", "C&ONTINUE", "&end"}) {
    window.menuBar()->addAction(item);
  }

  const int side = screen.height() * 3 / 4;
  const int under = 16 + side;
  const int half = 48 + side / 2;
  Place(new Picture(client, {48, 16, side, side}), {48, 16, side, side}, true);
  auto* text = new QPlainTextEdit(
      "We examine the effect of the shape of the curve and of the speed on the centripetal "
      "acceleration",
      client);
  text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  Place(text, {48 + side, 16, 225, 465}, true, 16);
  Place(new QRadioButton("Eξήγηση για τριβή", client), {16, under, 121, 33}, false);
  Place(new QRadioButton("XPONIKH EXELIXH", client), {16, under + 33, 177, 33}, false);
  Place(new QRadioButton("FACTORS THAT INFLUENCE ACCELERATION", client), {16, under + 66, 177, 33},
        false);
  Place(new QScrollBar(Qt::Vertical, client), {half + 187, under, 25, 98}, true);
  Place(new QLabel("Πλάτος =2", client), {half + 212, under, 81, 49}, true);
  Place(new QScrollBar(Qt::Horizontal, client), {half, under, 65, 25}, true);
  Place(new QLabel("Συχνότης=1.5", client), {half + 65, under, 81, 17}, true);
  Place(new QScrollBar(Qt::Horizontal, client), {half, under + 25, 65, 25}, true);
  Place(new QLabel("Επιτρόχιος επιτάχυνση= 2", client), {half + 65, under + 25, 105, 25}, true);
  Place(new QScrollBar(Qt::Vertical, client), {half + 293, under, 25, 98}, true);
  Place(new QLabel("Αρχική ταχύτητα = 3", client), {half + 318, under, 129, 33}, true);
  Place(new QPushButton("start", client), {48, under, 73, 25}, false);
  Place(new QPushButton("STEP", client), {121, under, 65, 25}, false);
  Place(new QScrollBar(Qt::Horizontal, client), {186, under, 89, 25}, false);
  Place(new QLabel("Δt = 0.02", client), {186, under + 25, 49, 25}, false);

  window.setGeometry(QRect(QPoint(0, 0), screen));
  window.show();
  return QApplication::exec();
}
