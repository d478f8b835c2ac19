"""A workbook as a flat OpenDocument text that LibreOffice Calc reads."""

from xml.sax.saxutils import escape

NAMESPACES = " ".join(
    f'xmlns:{prefix}="urn:oasis:names:tc:opendocument:xmlns:{name}:1.0"'
    for prefix, name in (
        ("office", "office"), ("style", "style"), ("text", "text"),
        ("table", "table"), ("number", "datastyle"),
        ("fo", "xsl-fo-compatible")))
THIN = 'fo:border="0.5pt solid #969cb4"'
MIDDLE = f'{THIN} style:vertical-align="middle" fo:padding="0.06cm"'
#: Look of a cell: of its text, of its paragraph, of its ground.
LOOKS = {
    "plain": ('fo:font-size="10pt"', "", ""),
    "title": ('fo:font-size="16pt" fo:font-weight="bold" fo:color="#00286e"',
              "", ""),
    "quiet": ('fo:font-size="10pt" fo:font-style="italic" fo:color="#5a6070"',
              "", ""),
    "head": ('fo:font-size="10pt" fo:font-weight="bold" fo:color="#00286e"',
             'fo:text-align="center"', f'fo:background-color="#dde4f3" {THIN} '
             'fo:wrap-option="wrap" style:vertical-align="middle"'),
    "text": ('fo:font-size="10pt"', "", MIDDLE),
    "name": ('fo:font-size="10pt" fo:font-weight="bold"', "", MIDDLE),
}


class Sheet:
    """Rows of cells: a text, or a number with its count of decimals. Each
    cell has a look of LOOKS."""

    def __init__(self, name, widths):
        self.name, self.widths = name, widths
        self.rows = []

    def row(self, *cells, look="plain"):
        self.rows.append([(cell, look) for cell in cells])

    def cells(self):
        """Each filled cell as row, column (from 0) and value."""
        for row, cells in enumerate(self.rows):
            for column, (value, _) in enumerate(cells):
                if isinstance(value, tuple):
                    value = round(*value)
                if value != "":
                    yield row, column, value


class Workbook:
    def __init__(self):
        self.sheets = []

    def sheet(self, name, widths):
        self.sheets.append(Sheet(name, widths))
        return self.sheets[-1]

    def xml(self):
        return (
            '<?xml version="1.0" encoding="UTF-8"?>\n'
            f'<office:document {NAMESPACES} office:version="1.2" '
            'office:mimetype='
            '"application/vnd.oasis.opendocument.spreadsheet">\n'
            f'<office:automatic-styles>{self.styles()}'
            '</office:automatic-styles>\n<office:master-styles>'
            '<style:master-page style:name="Default" '
            'style:page-layout-name="Landscape"/></office:master-styles>\n'
            '<office:body><office:spreadsheet>'
            + "".join(map(table, self.sheets))
            + '</office:spreadsheet></office:body></office:document>\n')

    def styles(self):
        widths = sorted({width for sheet in self.sheets
                         for width in sheet.widths})
        parts = [
            '<style:page-layout style:name="Landscape">'
            '<style:page-layout-properties fo:page-width="29.7cm" '
            'fo:page-height="21cm" style:print-orientation="landscape" '
            'style:scale-to-X="1" style:scale-to-Y="0" fo:margin="1.2cm"/>'
            '</style:page-layout>',
            '<style:style style:name="airy" style:family="table-row">'
            '<style:table-row-properties style:row-height="0.56cm" '
            'style:use-optimal-row-height="false"/></style:style>',
            '<style:style style:name="page" style:family="table" '
            'style:master-page-name="Default"/>']
        for width in widths:
            parts.append(
                f'<style:style style:name="{column_style(width)}" '
                'style:family="table-column"><style:table-column-properties '
                f'style:column-width="{width}cm"/></style:style>')
        for places in range(4):
            parts.append(
                f'<number:number-style style:name="n{places}">'
                f'<number:number number:decimal-places="{places}" '
                f'number:min-decimal-places="{places}" '
                'number:min-integer-digits="1" number:grouping="true"/>'
                '</number:number-style>')
            parts.append(cell_style(f"number{places}", LOOKS["text"],
                                    f' style:data-style-name="n{places}"'))
        parts += [cell_style(name, look) for name, look in LOOKS.items()]
        return "".join(parts)


def cell_style(name, look, more=""):
    text, paragraph, ground = look
    return (f'<style:style style:name="{name}" style:family="table-cell"'
            f'{more}><style:table-cell-properties {ground}/>'
            f'<style:paragraph-properties {paragraph}/>'
            f'<style:text-properties fo:font-family="Arial" {text}/>'
            '</style:style>')


def column_style(width):
    return "w" + str(width).replace(".", "_")


def table(sheet):
    columns = "".join('<table:table-column table:style-name="'
                      f'{column_style(width)}"/>' for width in sheet.widths)
    rows = "".join(f"<table:table-row{row_style(row)}>"
                   + "".join(map(table_cell, row)) + "</table:table-row>"
                   for row in sheet.rows)
    return (f'<table:table table:name="{escape(sheet.name)}" '
            f'table:style-name="page">{columns}{rows}</table:table>')


def row_style(row):
    """Rows of a table are of one height; titles and heads take what they
    need."""
    looks = {look for _, look in row}
    return ' table:style-name="airy"' if "text" in looks else ""


def table_cell(cell):
    value, look = cell
    if isinstance(value, tuple):
        number = round(*value)
        return (f'<table:table-cell table:style-name="number{value[1]}" '
                f'office:value-type="float" office:value="{number}"/>')
    if value == "":
        return "<table:table-cell/>"
    return (f'<table:table-cell table:style-name="{look}" '
            f'office:value-type="string"><text:p>{escape(value)}</text:p>'
            '</table:table-cell>')
