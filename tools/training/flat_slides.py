"""A slide show as a flat OpenDocument text that LibreOffice Impress reads.

Lengths are centimetres, the origin is the upper left corner of a slide, y
grows downward. Colours are "#rrggbb".
"""

from xml.sax.saxutils import escape

WIDTH, HEIGHT = 25.4, 19.05

NAMESPACES = " ".join(
    f'xmlns:{prefix}="urn:oasis:names:tc:opendocument:xmlns:{name}:1.0"'
    for prefix, name in (
        ("office", "office"), ("style", "style"), ("text", "text"),
        ("draw", "drawing"), ("presentation", "presentation"),
        ("fo", "xsl-fo-compatible"), ("svg", "svg-compatible")))


class Slide:
    """The shapes of one slide, in the order in which they are painted."""

    def __init__(self, show):
        self.show, self.shapes, self.texts = show, [], []

    def style(self, fill=None, line=None, thick=0.05, dash=False, arrow=False):
        return self.show.graphic_style(fill, line, thick, dash, arrow)

    def rect(self, left, top, width, height, corner=0.0, **look):
        self.shapes.append(
            f'<draw:rect draw:style-name="{self.style(**look)}" '
            f'{box(left, top, width, height)}'
            + (f' draw:corner-radius="{corner:.3f}cm"' if corner else "")
            + "/>")

    def circle(self, x, y, radius, **look):
        self.ellipse(x, y, radius, radius, **look)

    def ellipse(self, x, y, across, up, **look):
        self.shapes.append(
            f'<draw:ellipse draw:style-name="{self.style(**look)}" '
            f'{box(x - across, y - up, 2 * across, 2 * up)}/>')

    def line(self, x1, y1, x2, y2, **look):
        self.shapes.append(
            f'<draw:line draw:style-name="{self.style(**look)}" '
            f'svg:x1="{x1:.3f}cm" svg:y1="{y1:.3f}cm" svg:x2="{x2:.3f}cm" '
            f'svg:y2="{y2:.3f}cm"/>')

    def polyline(self, points, **look):
        self.points("polyline", points, look)

    def polygon(self, points, **look):
        self.points("polygon", points, look)

    def points(self, kind, points, look):
        left = min(x for x, _ in points)
        top = min(y for _, y in points)
        width = max(max(x for x, _ in points) - left, 0.001)
        height = max(max(y for _, y in points) - top, 0.001)
        run = " ".join(f"{round((x - left) * 1000)},{round((y - top) * 1000)}"
                       for x, y in points)
        self.shapes.append(
            f'<draw:{kind} draw:style-name="{self.style(**look)}" '
            f'{box(left, top, width, height)} svg:viewBox="0 0 '
            f'{round(width * 1000)} {round(height * 1000)}" '
            f'draw:points="{run}"/>')

    def text(self, left, top, width, height, lines, size=18, bold=False,
             colour="#1a2240", align="start", italic=False, middle=False,
             gap=0.0, hang=0.0):
        """Lines of text in a frame. A *word* between asterisks is bold; a
        line that runs on is set in by `hang`."""
        if isinstance(lines, str):
            lines = [lines]
        frame = self.show.frame_style(middle)
        paragraph = self.show.paragraph_style(align, gap, hang)
        plain = self.show.text_style(size, bold, colour, italic)
        strong = self.show.text_style(size, True, colour, italic)
        body = "".join(
            f'<text:p text:style-name="{paragraph}">'
            + "".join(f'<text:span text:style-name='
                      f'"{strong if number % 2 else plain}">{escape(part)}'
                      f'</text:span>'
                      for number, part in enumerate(line.split("*")) if part)
            + "</text:p>" for line in lines)
        self.texts.extend(line.replace("*", "") for line in lines)
        self.shapes.append(
            f'<draw:frame draw:style-name="{frame}" '
            f'{box(left, top, width, height)}><draw:text-box>{body}'
            f'</draw:text-box></draw:frame>')


def box(left, top, width, height):
    return (f'svg:x="{left:.3f}cm" svg:y="{top:.3f}cm" '
            f'svg:width="{width:.3f}cm" svg:height="{height:.3f}cm"')


class Show:
    """Slides and the styles that they use."""

    def __init__(self):
        self.slides, self.styles = [], {}

    def slide(self):
        self.slides.append(Slide(self))
        return self.slides[-1]

    def named(self, kind, family, body):
        key = (kind, family, body)
        if key not in self.styles:
            self.styles[key] = f"{kind}{len(self.styles) + 1}"
        return self.styles[key]

    def graphic_style(self, fill, line, thick, dash, arrow):
        parts = ['draw:fill="none"' if fill is None else
                 f'draw:fill="solid" draw:fill-color="{fill}"']
        if line is None:
            parts.append('draw:stroke="none"')
        else:
            parts.append(f'draw:stroke="{"dash" if dash else "solid"}" '
                         f'svg:stroke-color="{line}" '
                         f'svg:stroke-width="{thick:.3f}cm"')
            if dash:
                parts.append('draw:stroke-dash="Dash"')
            if arrow:
                parts.append('draw:marker-end="Arrow" '
                             f'draw:marker-end-width="{6 * thick:.2f}cm"')
        return self.named("g", "graphic", "<style:graphic-properties "
                          + " ".join(parts) + "/>")

    def frame_style(self, middle):
        where = "middle" if middle else "top"
        return self.named(
            "f", "graphic",
            '<style:graphic-properties draw:stroke="none" draw:fill="none" '
            'draw:auto-grow-height="false" fo:padding="0cm" '
            f'draw:textarea-vertical-align="{where}" fo:wrap-option="wrap"/>')

    def paragraph_style(self, align, gap, hang):
        return self.named(
            "p", "paragraph", f'<style:paragraph-properties '
            f'fo:text-align="{align}" fo:margin-bottom="{gap:.2f}cm" '
            f'fo:margin-left="{hang:.2f}cm" fo:text-indent="{-hang:.2f}cm"/>')

    def text_style(self, size, bold, colour, italic):
        return self.named(
            "t", "text", f'<style:text-properties fo:font-family="Arial" '
            f'fo:font-size="{size}pt" fo:color="{colour}" '
            f'fo:font-weight="{"bold" if bold else "normal"}" '
            f'fo:font-style="{"italic" if italic else "normal"}"/>')

    def xml(self):
        styles = "".join(
            f'<style:style style:name="{name}" style:family="{family}">'
            f'{body}</style:style>'
            for (_, family, body), name in self.styles.items())
        pages = "".join(
            f'<draw:page draw:name="Slide {number}" '
            'draw:master-page-name="Plain">' + "".join(slide.shapes)
            + "</draw:page>" for number, slide in enumerate(self.slides, 1))
        return (
            '<?xml version="1.0" encoding="UTF-8"?>\n'
            f'<office:document {NAMESPACES} office:version="1.2" '
            'office:mimetype='
            '"application/vnd.oasis.opendocument.presentation">\n'
            '<office:styles>'
            '<draw:stroke-dash draw:name="Dash" draw:style="rect" '
            'draw:dots1="1" draw:dots1-length="0.25cm" '
            'draw:distance="0.15cm"/>'
            '<draw:marker draw:name="Arrow" svg:viewBox="0 0 20 30" '
            'svg:d="M10 0l-10 30h20z"/></office:styles>\n'
            '<office:automatic-styles>'
            '<style:page-layout style:name="Screen">'
            '<style:page-layout-properties fo:margin="0cm" '
            f'fo:page-width="{WIDTH}cm" fo:page-height="{HEIGHT}cm" '
            'style:print-orientation="landscape"/></style:page-layout>'
            '<style:style style:name="White" style:family="drawing-page">'
            '<style:drawing-page-properties draw:fill="solid" '
            'draw:fill-color="#ffffff"/></style:style>'
            f'{styles}</office:automatic-styles>\n'
            '<office:master-styles><style:master-page style:name="Plain" '
            'style:page-layout-name="Screen" draw:style-name="White"/>'
            '</office:master-styles>\n'
            f'<office:body><office:presentation>{pages}'
            '</office:presentation></office:body></office:document>\n')
