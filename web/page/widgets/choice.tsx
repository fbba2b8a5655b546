interface ChoiceProperties<Value extends string> {
  label: string;
  value: Value;
  options: readonly (readonly [Value, string])[];
  set: (value: Value) => void;
}

/** One of several values, with its label before it. */
export function Choice<Value extends string>(properties: ChoiceProperties<Value>) {
  const { label, value, options, set } = properties;
  return (
    <label class="choice">
      <span>{label}</span>
      <select value={value} onChange={(event) => set(event.currentTarget.value as Value)}>
        {options.map(([key, text]) => (
          <option key={key} value={key} selected={key === value}>
            {text}
          </option>
        ))}
      </select>
    </label>
  );
}
