// Elements in one expression: h('p', { className: 'hint' }, 'text').

type Child = Node | string | null | undefined;
type Properties<Tag extends keyof HTMLElementTagNameMap> = Partial<
  Omit<HTMLElementTagNameMap[Tag], 'style' | 'dataset' | 'attributes'>
> & { attributes?: Record<string, string> };

export function h<Tag extends keyof HTMLElementTagNameMap>(
  tag: Tag,
  properties: Properties<Tag> = {},
  ...children: Child[]
): HTMLElementTagNameMap[Tag] {
  const element = document.createElement(tag);
  const { attributes, ...rest } = properties;
  Object.assign(element, rest);
  for (const [name, value] of Object.entries(attributes ?? {})) {
    element.setAttribute(name, value);
  }
  element.append(...children.filter((child): child is Node | string => child != null));
  return element;
}

export function svg(
  tag: string,
  attributes: Record<string, string | number>,
  text = '',
): SVGElement {
  const element = document.createElementNS('http://www.w3.org/2000/svg', tag);
  for (const [name, value] of Object.entries(attributes)) {
    element.setAttribute(name, String(value));
  }
  element.textContent = text;
  return element;
}

/** The element of the page with that id. */
export function byId<Type extends HTMLElement>(id: string): Type {
  const element = document.getElementById(id);
  if (!element) {
    throw new Error(`The page has no ${id}.`);
  }
  return element as Type;
}

export const button = (text: string, onclick: () => void, id = ''): HTMLButtonElement =>
  h('button', { type: 'button', textContent: text, onclick, id });

let lastId = 0;

/** A label with its control, and a hint below it. */
export function field(label: string, control: HTMLElement, hint = ''): HTMLElement {
  control.id ||= `control-${++lastId}`;
  const parts: Child[] = [h('label', { htmlFor: control.id, textContent: label }), control];
  if (hint) {
    const text = h('p', { className: 'hint', id: `hint-${++lastId}`, textContent: hint });
    control.setAttribute('aria-describedby', text.id);
    parts.push(text);
  }
  return h('div', { className: 'field' }, ...parts);
}

/** A box with its label behind it. */
export function box(label: string, checked: boolean, onchange: (on: boolean) => void): HTMLElement {
  const input = h('input', { type: 'checkbox', checked });
  input.onchange = (): void => onchange(input.checked);
  return h('label', { className: 'box' }, input, ' ', label);
}

/** A number as a reader wants it: four digits that matter. */
export function shortNumber(value: number): string {
  if (Number.isInteger(value)) {
    return String(value);
  }
  return value.toPrecision(4);
}
