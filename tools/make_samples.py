#!/usr/bin/env python3
"""Makes the sample installation in samples/totalcmd: settings, language files, a live log and its
rotated siblings. Always the same ones; run it again after a change here and commit what it makes.
"""

import pathlib
import random

FOLDER = pathlib.Path(__file__).resolve().parents[1] / "samples" / "totalcmd"
SEED = 20240315

# Id: (German, Russian). The words of the log are the German ones.
WORDS = {
    1800: ("Programmstart", "Запуск программы"),
    1801: ("Programmende", "Завершение программы"),
    1802: ("Kopieren", "Копирование"),
    1803: ("Verschieben", "Перемещение"),
    1804: ("Verknüpfen", "Создание ярлыка"),
    1805: ("NeuerOrdner", "Создание каталога"),
    1806: ("Löschen", "Удаление"),
    1807: ("OrdnerLöschen", "Удаление каталога"),
    1808: ("Packen", "Упаковка"),
    1809: ("Entpacken", "Распаковка"),
    1810: ("Testen", "Проверка архива"),
    1811: ("NeueDatei", "Создание файла"),
    1900: ("Fehler:", "Ошибка:"),
    1901: ("Fehlgeschlagen", "Неудачное завершение"),
    1902: ("Abgebrochen", "Прервано"),
    1903: ("Übersprungen", "Пропущено"),
    1904: ("Nicht gefunden", "Не найдено"),
    1905: ("Identisch", "Копирование в себя"),
    1906: ("Lesefehler", "Ошибка чтения"),
    1907: ("Schreibfehler", "Ошибка записи"),
    1908: ("Ungültiger Name", "Недопустимое имя"),
    1909: ("Packer nicht gefunden", "Упаковщик не найден"),
    1910: ("Temp-Datei-Fehler", "Ошибка временного файла"),
    1911: ("Löschen fehlgeschlagen", "Неудачное удаление"),
    1912: ("CRC-Fehler", "Ошибка CRC"),
    1913: ("Keine Dateien", "Нет файлов"),
    1914: ("Zu groß", "Файл слишком большой"),
    1915: ("Zu viele Dateien", "Слишком много файлов"),
    1916: ("Falsche(r) Parameter", "Некорректные параметры"),
    1917: ("Archiv fehlerhaft", "Архив не распознан или повреждён"),
    1918: ("Nicht unterstützt", "Функция не поддерживается"),
    1919: ("Verschlüsselt", "Зашифровано"),
    1920: ("Modul in Benutzung", "Модуль используется"),
    1921: ("Datei existiert", "Файл уже существует"),
    1922: ("auf später verschoben", "Отложено"),
}

WINCMD_INI = r"""; Einstellungen von Anna, Rechner DESK7
; zuletzt von Hand geändert am 02.01.2024

[Configuration]
InstallDir=%COMMANDER_PATH%
UseNewDefFont=1
firstmnu=5512
FirstTime=0
test=213
ShowHiddenSystem=1
UseTrash=1
LogFile=%COMMANDER_PATH%\logs\totalcmd.log
LogOptions = 7199
LogRotateLimit=200
LogKeepCount=5
languageini=WCMD_DEU.LNG
Mainmenu=WCMD_DEU.MNU
onlyonce=1
Editor=notepad.exe
Viewer=
PanelsVertical=0
AltSearch=3
Savepath=1
Savepanels=1
MarkDirectories=1
AlwaysToRoot=0
SingleClickStart=0
Win95Delete=1
Aligned extension=0
SeparateTree=0
CopyComments=6
DirTabOptions=824
TrayIcon=0
DriveCombo=1
CurDir=1
Titlebar=1
Statusbar=1
[1280x900 (8x16)]
x=64
y=48
dx=1100
dy=760
maximized=0
FontSize=10
FontName=Segoe UI
FontWeight=400
[left]
path=c:\Users\Anna\Documents\
ShowAllDetails=1
SpecialView=0
show=1
sortorder=1
[right]
path=d:\Archiv\2024\
ShowAllDetails=1
SpecialView=0
show=1
sortorder=0
[Packer]
InternalUnzip=1
ZIPlikeDirectory=1
LastUsedPacker=1000
[Layout]
ButtonBar=1
DriveBar1=1
DirectoryTabs=1
CmdLine=1
KeyButtons=1
[Lister]
TextChar=ANSI
Wrap=1
[Confirmation]
deleteDirs=1
OverwriteFiles=1
OverwriteReadonly=1
OverwriteHidSys=1
MouseActions=0
[DirMenu]
menu1=Projekte
cmd1=cd d:\Projekte
menu2=Musik
cmd2=cd e:\Musik
[LeftHistory]
0=c:\Users\Anna\Documents\
1=c:\Users\Anna\Downloads\
2=d:\Projekte\Küche\
[RightHistory]
0=d:\Archiv\2024\
1=\\nas\fotos\
"""

DOCUMENTS = ["Angebot_Küche", "Reisekosten März", "Protokoll 2024-02", "Rechnung 4711", "Einladung",
             "Vertrag (unterschrieben)", "Übersicht", "Notizen", "Präsentation Vertrieb", "Zeugnis"]
PICTURES = ["DSC_0{:03d}", "IMG_2024{:04d}", "Urlaub_{:02d}", "Scan {:03d}"]
FOREIGN = ["Отчёт за февраль.docx", "Фотографии.zip", "Żółty plan.xlsx", "αρχείο.txt"]
FOLDERS = [r"C:\Users\Anna\Documents", r"C:\Users\Anna\Downloads", r"D:\Projekte\Küche",
           r"D:\Archiv\2024", r"E:\Musik\Neu", r"\\nas\fotos\2024", r"\\nas\sicherung\anna",
           r"\\\FTP\web.example\htdocs", r"\\\SFTP\werk.example\home\anna"]
FAILURES = {"copy": (1903, 1906, 1907, 1921, 1902), "move": (1902, 1904, 1907), "delete": (1911,),
            "pack": (1902, 1914, 1907), "unpack": (1912, 1917, 1919), "test": (1912, 1917)}


# What became of one file, for whoever asks for its history: renamed, then moved twice. By date: ids of
# words, source and target.
STORY = {
    "11.03.2024": [(1811, r"C:\Users\Anna\Documents\Reiseplan.odt", "")],
    "12.03.2024": [(1803, r"C:\Users\Anna\Documents\Reiseplan.odt",
                    r"C:\Users\Anna\Documents\Reiseplan Italien.odt")],
    "13.03.2024": [(1803, r"C:\Users\Anna\Documents\Reiseplan Italien.odt",
                    r"D:\Projekte\Urlaub\Reiseplan Italien.odt"),
                   (1802, r"D:\Projekte\Urlaub\Reiseplan Italien.odt",
                    r"\\nas\sicherung\anna\Reiseplan Italien.odt")],
    "14.03.2024": [(1803, r"D:\Projekte\Urlaub\Reiseplan Italien.odt",
                    r"D:\Archiv\2024\Reiseplan Italien.odt")],
}


def german(number):
    return WORDS[number][0]


class Day:
    """One working day of the log: its lines, with the clock going on from line to line."""

    def __init__(self, chance, date, only_western):
        self.chance = chance
        self.date = date
        self.only_western = only_western
        self.seconds = chance.randint(7 * 3600, 9 * 3600)
        self.lines = []

    def add(self, text):
        self.seconds += self.chance.choice((0, 1, 1, 2, 3, 11, 64, 190))
        hours, rest = divmod(self.seconds, 3600)
        self.lines.append(f"{self.date} {hours:02d}:{rest // 60:02d}:{rest % 60:02d}: {text}")

    def file_name(self):
        kind = self.chance.random()
        if kind < 0.12 and not self.only_western:
            return self.chance.choice(FOREIGN)
        if kind < 0.55:
            return self.chance.choice(DOCUMENTS) + self.chance.choice(
                (".pdf", ".docx", ".xlsx", ".txt", ".odt"))
        return self.chance.choice(PICTURES).format(self.chance.randint(1, 999)) + ".jpg"

    def folders(self):
        return self.chance.sample(FOLDERS, 2)

    def failure(self, kind, word, source):
        outcome = german(self.chance.choice(FAILURES[kind]))
        if self.chance.random() < 0.5:
            self.add(f"{word}: {german(1900)} {outcome}: {source}")
        else:
            self.add(f"{word}: {outcome}: {source}")

    def transfer(self, number, kind):
        """Several files from one folder to another, as one command does it."""
        source, target = self.folders()
        for _ in range(self.chance.randint(1, 5)):
            name = self.file_name()
            if self.chance.random() < 0.06:
                self.failure(kind, german(number), f"{source}\\{name}")
            else:
                self.add(f"{german(number)} {source}\\{name} -> {target}\\{name}")

    def delete(self):
        folder = self.chance.choice(FOLDERS)
        for _ in range(self.chance.randint(1, 3)):
            if self.chance.random() < 0.08:
                self.failure("delete", german(1806), f"{folder}\\{self.file_name()}")
            else:
                self.add(f"{german(1806)} {folder}\\{self.file_name()}")

    def archive(self):
        source, target = self.folders()
        archive = f"{target}\\{self.chance.choice(DOCUMENTS)}.zip"
        for _ in range(self.chance.randint(1, 4)):
            self.add(f"{german(1808)} {source}\\{self.file_name()} -> {archive}")
        if self.chance.random() < 0.4:
            self.failure("test", german(1810), archive)
        else:
            self.add(f"{german(1810)} {archive}")
        self.add(f"{german(1809)} {archive}\\{self.file_name()} -> {source}\\{self.file_name()}")

    def make_something(self):
        folder = self.chance.choice(FOLDERS)
        name = self.chance.choice(DOCUMENTS)
        self.add(self.chance.choice((
            f"{german(1805)} {folder}\\{name}",
            f"{german(1811)} {folder}\\{name}.txt",
            f"{german(1807)} {folder}\\{name}",
            f"{german(1804)} {folder}\\{name}.pdf -> C:\\Users\\Anna\\Desktop\\{name}.lnk")))

    def rarities(self):
        """What is met seldom, but has to be read right: once in every log."""
        self.add(rf"{german(1802)} \\\SFTP\werk.example\var\www\alt->neu.html -> "
                 r"D:\Projekte\web\alt-neu.html")
        deep = "\\".join(["Sicherung des ganzen Rechners vom Dienstag"] * 6)
        self.add(rf"{german(1803)} D:\{deep}\letzte.txt -> \\nas\sicherung\{deep}\letzte.txt")
        if not self.only_western:
            self.add(rf"{german(1802)} D:\Projekte\報告書.pdf -> \\nas\fotos\2024\家族写真.jpg")
        self.lines.append("; ab hier die Umstellung auf den neuen Server")
        self.add(rf"{german(1802)}: {german(1903)}: C:\pagefile.sys")

    def story(self):
        """At the day's start; nothing in it is left to chance."""
        hours, rest = divmod(self.seconds, 3600)
        for number, source, target in STORY.get(self.date, ()):
            self.lines.append(f"{self.date} {hours:02d}:{rest // 60:02d}:{rest % 60:02d}: "
                              f"{german(number)} {source}" + (f" -> {target}" if target else ""))

    def work(self, steps, rare):
        self.add(f"{german(1800)} (anna/DESK7)" + ("" if self.only_western else " UTF-8"))
        self.story()
        for step in range(steps):
            if rare and step == steps // 2:
                self.rarities()
            self.chance.choices((
                lambda: self.transfer(1802, "copy"), lambda: self.transfer(1803, "move"),
                self.delete, self.archive, self.make_something), (8, 4, 4, 3, 3))[0]()
        self.add(f"{german(1801)} (anna/DESK7)")
        return self.lines


def log(chance, dates, steps, only_western=False):
    lines = []
    for number, date in enumerate(dates):
        lines += Day(chance, date, only_western).work(steps, rare=number == 1)
    return "".join(line + "\r\n" for line in lines)


def language(title, code_page, column):
    lines = [title, f"codepage={code_page}"]
    lines += [f'{number}="{words[column]}"' for number, words in WORDS.items()]
    return "".join(line + "\r\n" for line in lines).encode(f"cp{code_page}")


def write(name, content):
    path = FOLDER / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content)


def main():
    chance = random.Random(SEED)
    # The oldest log is from before the file manager wrote UTF-8.
    write("logs/totalcmd.2.log",
          log(chance, [f"{day}.02.2024" for day in (26, 27, 28, 29)], 22, True).encode("cp1252"))
    write("logs/totalcmd.1.log",
          log(chance, [f"{day:02d}.03.2024" for day in (4, 5, 6, 7, 8)], 22).encode("utf-8-sig"))
    write("logs/totalcmd.log",
          log(chance, [f"{day}.03.2024" for day in (11, 12, 13, 14, 15)], 24).encode("utf-8-sig"))
    write("Language/WCMD_DEU.LNG", language("Deutsch (German)", 1252, 0))
    write("Language/WCMD_RUS.LNG", language("Russian (Русский)", 1251, 1))
    write("wincmd.ini", WINCMD_INI.replace("\n", "\r\n").encode("cp1252"))


if __name__ == "__main__":
    main()
