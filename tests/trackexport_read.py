# SPDX-License-Identifier: BSD-3-Clause
# Reads an exported track back with a reader made for each format and compares it with
# the points it came from. Arguments: the CSV, GPX and KML files. stdin: {"name", "points":
# [[the CSV's columns, then the quality's 0xRRGGBB]]}, null for unknown.
import csv, itertools, json, sys
import xml.etree.ElementTree as ET
from datetime import datetime

data = json.load(sys.stdin)
KEYS = ('time', 'lat', 'lon', 'hmsl', 'hell', 'quality', 'qname', 'sats', 'hdop', 'sdlat', 'sdlon', 'sdh', 'rgb')
points = [dict(zip(KEYS, v), alt=v[4] if v[3] is None else v[3]) for v in data['points']]
placed = [p for p in points if None not in (p['lat'], p['lon']) and abs(p['lat']) <= 90 and abs(p['lon']) <= 180]
HEADER = 'time_utc,lat_deg,lon_deg,height_msl_m,height_ellipsoid_m,quality,quality_name,satellites_used,hdop,sd_lat_m,sd_lon_m,sd_height_m'
FIX_WORDS = ('none', '3d', 'dgps', 'pps', 'dgps', 'dgps', '3d', '3d', '3d', 'dgps', 'dgps')  # by quality number
NAME = ''.join(c for c in data['name'] if c >= ' ' or c in '\t\n')  # XML cannot carry the others


def check(ok, what): ok or sys.exit(f'{path}: {what}')


# The text gives the value to its printed decimals (exactly without); unknown values are left out.
def near(text, value, decimals=None):
    if value is None or text in (None, ''):
        return value is None and text in (None, '')
    return text == str(value) if decimals is None else abs(float(text) - value) <= 0.5001 * 10 ** -decimals


def ms(text): return round(datetime.fromisoformat(text).timestamp() * 1000)


def read_csv():
    text = open(path, newline='', encoding='utf-8').read()
    rows = list(csv.reader(text.splitlines()))
    check(rows[0] == HEADER.split(',') and text.count('\r\n') == len(rows) == len(points) + 1
          and '\n' not in text.replace('\r\n', ''), 'header and line ends')
    for row, values in zip(rows[1:], data['points']):
        check(ms(row[0]) == values[0] and all(map(near, row[1:], values[1:], (9, 9, 4, 4, None, None, None, 2, 4, 4, 4))), row)


def read_gpx():
    ns = '{http://www.topografix.com/GPX/1/1}'
    root = ET.parse(path).getroot()
    trkpts = root.findall(f'{ns}trk/{ns}trkseg/{ns}trkpt')
    check(root.tag == ns + 'gpx' and root.get('version') == '1.1' and len(root.findall(ns + 'trk')) == 1, 'root')
    check([e.text or '' for e in root.iterfind(f'.//{ns}name')] == [NAME] * 2 and len(trkpts) == len(placed), 'track')
    for e, p in zip(trkpts, placed):
        children = {c.tag[len(ns):]: c.text for c in e}
        known = {'ele': p['alt'], 'time': 1, 'fix': 1, 'sat': p['sats'], 'hdop': p['hdop']}  # in the schema's order
        check(list(children) == [tag for tag, value in known.items() if value is not None], list(children))
        check(near(e.get('lat'), p['lat'], 9) and near(e.get('lon'), p['lon'], 9) and near(children.get('ele'), p['alt'], 4)
              and near(children.get('hdop'), p['hdop'], 2) and near(children.get('sat'), p['sats'])
              and ms(children['time']) == p['time'] and children['fix'] == FIX_WORDS[p['quality']], children)


def read_kml():
    ns = '{http://www.opengis.net/kml/2.2}'
    root = ET.parse(path).getroot()
    doc = root.find(ns + 'Document')
    styles = {s.get('id'): s.find(f'{ns}LineStyle/{ns}color').text for s in doc.findall(ns + 'Style')}
    runs = [list(run) for _, run in itertools.groupby(placed, key=lambda p: p['quality'])]
    marks = doc.findall(ns + 'Placemark')
    check(root.tag == ns + 'kml' and (doc.find(ns + 'name').text or '') == NAME, 'root')
    check(len(styles) == len({p['quality'] for p in placed}) and len(marks) == len(runs), 'styles and runs')
    previous = []
    for mark, run in zip(marks, runs):
        rgb = run[0]['rgb']  # KML's colours are aabbggrr
        check(styles[mark.find(ns + 'styleUrl').text[1:]] == 'ff%02x%02x%02x' % (rgb & 255, rgb >> 8 & 255, rgb >> 16)
              and run[0]['qname'] in mark.find(ns + 'name').text
              and mark.find(f'{ns}LineString/{ns}altitudeMode').text == 'absolute', 'placemark')
        tuples = [t.split(',') + [None] for t in mark.find(f'{ns}LineString/{ns}coordinates').text.split()]
        line = previous + run  # from where the run before ended; a lone point twice
        line *= 2 if len(line) == 1 else 1
        check(len(tuples) == len(line) and all(near(t[0], p['lon'], 9) and near(t[1], p['lat'], 9) and near(t[2], p['alt'], 4)
                                               for t, p in zip(tuples, line)), tuples)
        previous = run[-1:]


for path, read in zip(sys.argv[1:], (read_csv, read_gpx, read_kml)):
    read()
