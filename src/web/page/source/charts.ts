// Charts that are tables or lists of values to whoever does not see them.
import { h, shortNumber, svg } from './dom';
import type { Bar, Chart } from './protocol';

function barRow(bar: Bar, most: number): HTMLElement {
  const value = bar.value ?? 0;
  const drawn = h('div', { className: 'bar' });
  drawn.style.width = `${(100 * value) / most}%`;
  const track = h('div', { className: 'track' }, drawn);
  if (bar.deviation != null && bar.deviation > 0) {
    const spread = h('div', { className: 'spread' });
    const from = Math.max(0, value - bar.deviation);
    spread.style.left = `${(100 * from) / most}%`;
    spread.style.width = `${(100 * (Math.min(most, value + bar.deviation) - from)) / most}%`;
    track.append(spread);
  }
  return h(
    'tr',
    {},
    h('th', { scope: 'row', textContent: bar.label }),
    h('td', { className: 'drawn', attributes: { 'aria-hidden': 'true' } }, track),
    h('td', {
      className: 'number',
      textContent: bar.value === null ? 'NA' : shortNumber(bar.value),
    }),
  );
}

function barChart(bars: Bar[], most: number): HTMLElement {
  return h('table', { className: 'bars' }, h('tbody', {}, ...bars.map((bar) => barRow(bar, most))));
}

const kWidth = 640;
const kHeight = 300;
const kLeft = 46;
const kBottom = 60;
const kTop = 12;

function lineChart(chart: Chart): SVGElement {
  const { labels = [], lines = [] } = chart;
  const drawing = svg('svg', { viewBox: `0 0 ${kWidth} ${kHeight}`, role: 'img' });
  const told = lines.map((line) => `${line.name}: ${shortNumber(line.values.at(-1) ?? 0)}`);
  drawing.append(svg('title', {}, `${chart.title}. At the end: ${told.join(', ')}`));
  const x = (k: number): number =>
    kLeft + ((kWidth - kLeft - 20) * k) / Math.max(1, labels.length - 1);
  const y = (value: number): number => kTop + (kHeight - kTop - kBottom) * (1 - value);
  for (const share of [0, 0.25, 0.5, 0.75, 1]) {
    drawing.append(
      svg('line', { class: 'grid', x1: kLeft, x2: kWidth - 20, y1: y(share), y2: y(share) }),
      svg('text', { x: kLeft - 6, y: y(share) + 4, 'text-anchor': 'end' }, String(share)),
    );
  }
  const step = Math.max(1, Math.ceil(labels.length / 12));
  labels.forEach((label, k) => {
    if (k % step === 0) {
      drawing.append(
        svg(
          'text',
          {
            transform: `translate(${x(k)} ${kHeight - kBottom + 14}) rotate(35)`,
          },
          label,
        ),
      );
    }
  });
  lines.forEach((line, k) => {
    const points = line.values.map((value, j) => (value === null ? '' : `${x(j)},${y(value)}`));
    const look = `line line-${k % 6}`;
    drawing.append(svg('polyline', { class: look, points: points.join(' ') }));
  });
  return drawing;
}

function legend(chart: Chart): HTMLElement {
  return h(
    'ul',
    { className: 'legend' },
    ...(chart.lines ?? []).map((line, k) => {
      const sign = svg('svg', { viewBox: '0 0 24 8', width: 24, height: 8, 'aria-hidden': 'true' });
      sign.append(svg('line', { class: `line line-${k % 6}`, x1: 0, x2: 24, y1: 4, y2: 4 }));
      return h('li', {}, sign, ` ${line.name}`);
    }),
  );
}

export function chartFigure(chart: Chart): HTMLElement {
  const figure = h('figure', {}, h('h3', { textContent: chart.title }));
  if (chart.bars) {
    const most = chart.share ? 1 : Math.max(1, ...chart.bars.map((bar) => bar.value ?? 0));
    figure.append(barChart(chart.bars, most));
  } else {
    figure.append(lineChart(chart), legend(chart));
  }
  figure.append(h('figcaption', { textContent: chart.caption }));
  return figure;
}
